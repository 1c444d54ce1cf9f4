#include "views/files/fileicon.h"

#include "views/core/followsource.h"

#include <QQuickWindow>

#include <algorithm>

namespace quib {

void FileIcon::setSource(IconSource* source)
{
    if (followSource(m_source, source, this, &FileIcon::askAnew, {&IconSource::changed})) {
        Q_EMIT sourceChanged();
    }
}

void FileIcon::setPath(const QString& path)
{
    if (m_path == path) {
        return;
    }
    m_path = path;
    Q_EMIT pathChanged();
    take({}); // Never the picture of another.
    askAnew();
}

QImage FileIcon::picture(double pixelsPerPoint) const
{
    const int wanted = side(pixelsPerPoint);
    return m_picture.isNull() || wanted < 1 || m_picture.width() == wanted
        ? m_picture
        : m_picture.scaled(wanted, wanted, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

void FileIcon::componentComplete()
{
    RasterItem::componentComplete();
    ask();
}

void FileIcon::geometryChange(const QRectF& now, const QRectF& before)
{
    RasterItem::geometryChange(now, before);
    ask();
}

void FileIcon::itemChange(ItemChange change, const ItemChangeData& value)
{
    RasterItem::itemChange(change, value);
    if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange) {
        ask();
    } else if (change == ItemVisibleHasChanged && value.boolValue) {
        askAnew(); // It may have changed out of sight.
    }
}

int FileIcon::side(double pixelsPerPoint) const
{
    return qRound(std::min(width(), height()) * pixelsPerPoint);
}

void FileIcon::ask()
{
    if (!isComponentComplete() || !m_source || !window() || m_path.isEmpty()) {
        return;
    }
    const int wanted = side(window()->effectiveDevicePixelRatio());
    if (wanted < 1 || wanted == m_asked) {
        return;
    }
    m_asked = wanted;
    m_source->find(m_path, wanted,
                   [self = QPointer(this), question = ++m_question](const QImage& picture) {
                       if (self && self->m_question == question) {
                           self->take(picture);
                       }
                   });
}

/// The picture that is there stays until the new one comes.
void FileIcon::askAnew()
{
    m_asked = 0;
    ++m_question;
    ask();
}

void FileIcon::take(const QImage& picture)
{
    m_picture = picture;
    redraw();
}

} // namespace quib
