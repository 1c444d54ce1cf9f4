#include "platform/linux/icons/filepicture.h"

#include "brand/brand.h"
#include "platform/linux/base/keyfile.h"
#include "platform/linux/icons/iconfile.h"
#include "platform/linux/icons/icontheme.h"

#include <QFile>
#include <QFileInfo>
#include <QHashFunctions>
#include <QMimeDatabase>
#include <QPainter>
#include <QPainterPath>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr qint64 TellingBytes = 16'384;

QImage themed(const QStringList& names, const PictureWish& wish)
{
    const auto file = findIcon(names, wish.pixels, iconPlaces(wish.theme));
    return file.isEmpty() ? QImage() : readIcon(file, wish.pixels);
}

/// Some entries name the file where the theme has a name.
QString withoutSuffix(const QString& icon)
{
    const bool hasSuffix
        = icon.endsWith(".png"_L1) || icon.endsWith(".svg"_L1) || icon.endsWith(".xpm"_L1);
    return hasSuffix ? icon.chopped(4) : icon;
}

QImage pictureOfEntry(const PictureWish& wish)
{
    const auto icon = KeyFile(wish.path).textInOurLanguage(u"Desktop Entry"_s, "Icon");
    if (icon.startsWith(u'/')) {
        return readIcon(icon, wish.pixels);
    }
    return themed({icon, withoutSuffix(icon)}, wish);
}

/// What it is, by its name and, where that does not tell, by its beginning.
QMimeType kindOf(const QFileInfo& file)
{
    // Qt would read the file itself while no other thread could ask.
    QFile content(file.filePath());
    const auto beginning
        = content.open(QIODevice::ReadOnly) ? content.read(TellingBytes) : QByteArray();
    return QMimeDatabase().mimeTypeForFileNameAndData(file.fileName(), beginning);
}

QStringList namesFor(const QFileInfo& file)
{
    const auto executable = u"application-x-executable"_s;
    if (file.isDir()) {
        return {file.fileName().endsWith(".app"_L1) ? executable : u"folder"_s};
    }
    if (file.exists() && !file.isFile()) {
        return {};
    }
    if (file.fileName().endsWith(".desktop"_L1)) {
        return {executable};
    }
    const auto kind = kindOf(file); // Of one that is gone the name may tell.
    return {kind.iconName(), kind.genericIconName(), u"text-x-generic"_s};
}

QImage pictureOfKind(const PictureWish& wish)
{
    const auto names = namesFor(QFileInfo(wish.path));
    return names.isEmpty() ? QImage() : themed(names, wish);
}

} // namespace

size_t qHash(const PictureWish& wish, size_t seed)
{
    return qHashMulti(seed, wish.path, wish.pixels, wish.theme);
}

QImage pictureOf(const PictureWish& wish)
{
    auto picture = wish.path.endsWith(".desktop"_L1) ? pictureOfEntry(wish) : QImage();
    if (picture.isNull()) {
        picture = pictureOfKind(wish);
    }
    return picture.isNull() ? standIn(wish.pixels) : picture;
}

QImage standIn(int pixels)
{
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixels / 20.0, pixels / 20.0);
    QPainterPath sheet; // With a corner folded down.
    sheet.addPolygon(QPolygonF{{4.5, 2.5}, {11.5, 2.5}, {15.5, 6.5}, {15.5, 17.5}, {4.5, 17.5}});
    sheet.closeSubpath();
    sheet.addPolygon(QPolygonF{{11.5, 2.5}, {11.5, 6.5}, {15.5, 6.5}});
    painter.setPen(QPen(Brand::muted(), 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(sheet);
    return image;
}

} // namespace quib
