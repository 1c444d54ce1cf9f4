#pragma once

#include <QColor>
#include <QQuickItem>

#include <qqmlintegration.h>

namespace quib {

/// A symbol by name, drawn as a path: sharp at every scale, in any size and colour.
class Symbol : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name MEMBER m_name NOTIFY changed)
    Q_PROPERTY(double size MEMBER m_size NOTIFY changed)
    Q_PROPERTY(int weight MEMBER m_weight NOTIFY changed)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)

public:
    using QQuickItem::QQuickItem;

Q_SIGNALS:
    void changed();

private:
    QString m_name;
    double m_size = 12;
    int m_weight = 400; ///< As of a font: 400 is regular, 700 bold.
    QColor m_color = Qt::white;
};

} // namespace quib
