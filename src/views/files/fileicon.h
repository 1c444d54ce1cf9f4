#pragma once

#include "integrations/opening/iconsource.h"
#include "views/shapes/rasteritem.h"

#include <QPointer>

#include <qqmlintegration.h>

namespace quib {

/// The picture of the file or application at a path, as large as fits. Decoration, like a Symbol.
/// Nothing is seen until the picture has come, nor without a path.
class FileIcon : public quib::RasterItem { // Spelt out for the tools of QML.
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(quib::IconSource* source READ source WRITE setSource NOTIFY sourceChanged REQUIRED)
    Q_PROPERTY(QString path READ path WRITE setPath NOTIFY pathChanged)

public:
    using RasterItem::RasterItem;

    IconSource* source() const { return m_source; }
    QString path() const { return m_path; } ///< Full.
    QImage image() const { return m_picture; } ///< Null while there is nothing to see.

    /// Borrowed: without one no new pictures come.
    void setSource(IconSource* source);
    void setPath(const QString& path);

Q_SIGNALS:
    void sourceChanged();
    void pathChanged();

protected:
    QImage picture(double pixelsPerPoint) const override;
    void componentComplete() override;
    void geometryChange(const QRectF& now, const QRectF& before) override;
    void itemChange(ItemChange change, const ItemChangeData& value) override;

private:
    int side(double pixelsPerPoint) const;
    void ask();
    void askAnew();
    void take(const QImage& picture);

    QPointer<IconSource> m_source;
    QString m_path;
    int m_asked = 0; ///< The side that was last asked for; none while it is zero.
    int m_question = 0; ///< Counts them: only the last one's answer is taken.
    QImage m_picture;
};

} // namespace quib
