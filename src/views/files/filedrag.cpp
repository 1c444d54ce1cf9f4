#include "views/files/filedrag.h"

#include <QCoreApplication>
#include <QDrag>
#include <QMimeData>
#include <QPixmap>
#include <QQuickWindow>
#include <QUrl>

#include <memory>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

std::unique_ptr<QMimeData> contentsOf(const QString& path)
{
    auto contents = std::make_unique<QMimeData>();
    contents->setData(FileDrag::ownFormat(), {});
    if (path.startsWith(u'/')) {
        contents->setUrls({QUrl::fromLocalFile(path)});
    }
    return contents;
}

/// Held by its middle.
void showPicture(QDrag& drag, const FileIcon& icon)
{
    const auto scale = icon.window()->effectiveDevicePixelRatio();
    auto picture = QPixmap::fromImage(icon.image());
    picture.setDevicePixelRatio(scale);
    drag.setPixmap(picture);
    drag.setHotSpot(QRectF({}, picture.deviceIndependentSize()).center().toPoint());
}

void carry(const FileIcon& icon, const QString& path)
{
    auto* drag = new QDrag(icon.window()); // Which Qt deletes at the end of it.
    drag->setMimeData(contentsOf(path).release()); // And so does the drag with these.
    showPicture(*drag, icon);
    drag->exec(Qt::CopyAction);
}

} // namespace

QString FileDrag::ownFormat()
{
    return u"application/x-korvel-quib-%1"_s.arg(QCoreApplication::applicationPid());
}

void FileDrag::start(FileIcon* icon, const QString& path)
{
    // Not from within the handling of the move that began it.
    QMetaObject::invokeMethod(
        icon,
        [icon, path] {
            if (icon->window()) {
                carry(*icon, path);
            }
        },
        Qt::QueuedConnection);
}

} // namespace quib
