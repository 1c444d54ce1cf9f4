#include "platform/linux/statusitem/itemservice.h"

#include "brand/brand.h"

#include <QDBusMetaType>
#include <QPainter>
#include <QtEndian>

#include <algorithm>
#include <utility>

namespace quib {

namespace {

/// The shape in a colour that stands out from light panels and from dark ones.
QImage tinted(const QImage& shape)
{
    auto image = shape.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), Brand::purple());
    painter.end();
    return image.convertToFormat(QImage::Format_ARGB32);
}

IconPixmap pixmap(const QImage& shape)
{
    const auto image = tinted(shape);
    IconPixmap pixmap{.width = image.width(), .height = image.height(), .pixels = {}};
    pixmap.pixels.resize(image.sizeInBytes());
    qToBigEndian<quint32>(image.constBits(), image.sizeInBytes() / 4, pixmap.pixels.data());
    return pixmap;
}

} // namespace

QDBusArgument& operator<<(QDBusArgument& out, const IconPixmap& pixmap)
{
    out.beginStructure();
    out << pixmap.width << pixmap.height << pixmap.pixels;
    out.endStructure();
    return out;
}

QDBusArgument& operator<<(QDBusArgument& out, const IconToolTip& toolTip)
{
    out.beginStructure();
    out << toolTip.iconName << toolTip.pixmaps << toolTip.title << toolTip.text;
    out.endStructure();
    return out;
}

const QDBusArgument& operator>>(const QDBusArgument& in, IconPixmap& pixmap)
{
    in.beginStructure();
    in >> pixmap.width >> pixmap.height >> pixmap.pixels;
    in.endStructure();
    return in;
}

const QDBusArgument& operator>>(const QDBusArgument& in, IconToolTip& toolTip)
{
    in.beginStructure();
    in >> toolTip.iconName >> toolTip.pixmaps >> toolTip.title >> toolTip.text;
    in.endStructure();
    return in;
}

ItemService::ItemService(QString menuPath)
    : m_menuPath(std::move(menuPath))
{
    qDBusRegisterMetaType<IconPixmap>();
    qDBusRegisterMetaType<QList<IconPixmap>>();
    qDBusRegisterMetaType<IconToolTip>();
}

void ItemService::setIcon(const StatusIcon& icon)
{
    m_name = icon.accessibleName;
    m_pixmaps.clear();
    std::ranges::transform(icon.images, std::back_inserter(m_pixmaps), pixmap);
}

void ItemService::Activate(int /*x*/, int /*y*/)
{
    QMetaObject::invokeMethod(this, &ItemService::pressed, Qt::QueuedConnection);
}

void ItemService::SecondaryActivate(int /*x*/, int /*y*/) { }

void ItemService::ContextMenu(int /*x*/, int /*y*/) { }

void ItemService::Scroll(int /*delta*/, const QString& /*orientation*/) { }

} // namespace quib
