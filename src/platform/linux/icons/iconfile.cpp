#include "platform/linux/icons/iconfile.h"

#include "model/file/wholefile.h"
#include "model/texts/nativepath.h"
#include "platform/linux/icons/harmlesssvg.h"

#include <QBuffer>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>

namespace quib {

namespace {

constexpr qint64 LargestFile = 4'000'000;
constexpr qint64 LargestDrawing = 1'000'000;
constexpr int LongestSide = 4096;

QImage clearSquare(int pixels)
{
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

/// In the middle of the square, as large as fits.
QRectF placeOf(QSizeF size, int pixels)
{
    const auto fitting = size.scaled(pixels, pixels, Qt::KeepAspectRatio);
    return {{(pixels - fitting.width()) / 2, (pixels - fitting.height()) / 2}, fitting};
}

QImage drawn(const QByteArray& svg, int pixels)
{
    QSvgRenderer renderer;
    renderer.setFramesPerSecond(0); // No timer, for which this thread has no loop.
    if (svg.size() > LargestDrawing || !isHarmlessSvg(svg) || !renderer.load(svg)
        || renderer.viewBoxF().isEmpty()) {
        return {};
    }
    auto image = clearSquare(pixels);
    QPainter painter(&image);
    renderer.render(&painter, placeOf(renderer.viewBoxF().size(), pixels));
    return image;
}

QImage scaled(const QImage& picture, int pixels)
{
    const auto place = placeOf(picture.size(), pixels).toRect();
    auto image = clearSquare(pixels);
    QPainter painter(&image);
    painter.drawImage(place.topLeft(),
                      picture.scaled(place.size().expandedTo({1, 1}), Qt::IgnoreAspectRatio,
                                     Qt::SmoothTransformation));
    return image;
}

QImage decoded(QByteArray bytes, int pixels)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    const auto size = reader.size(); // Before all of it is unpacked.
    const bool isDrawing = reader.format().startsWith("svg");
    if (isDrawing || size.isEmpty() || size.width() > LongestSide || size.height() > LongestSide) {
        return {};
    }
    const auto picture = reader.read();
    return picture.isNull() ? picture : scaled(picture, pixels);
}

/// A packed drawing, which Qt would unpack however large it becomes.
bool isPacked(const QByteArray& bytes)
{
    return bytes.startsWith("\x1f\x8b");
}

/// By its beginning: names may say anything.
bool isMarkup(const QByteArray& bytes)
{
    const auto start = bytes.left(512);
    return start.startsWith("\xef\xbb\xbf") || start.trimmed().startsWith('<');
}

} // namespace

QImage readIcon(const QString& path, int pixels)
{
    const auto bytes = wholeFile(nativePath(path), LargestFile);
    return bytes ? decodeIcon(*bytes, pixels) : QImage();
}

QImage decodeIcon(const QByteArray& bytes, int pixels)
{
    if (isPacked(bytes)) {
        return {};
    }
    return isMarkup(bytes) ? drawn(bytes, pixels) : decoded(bytes, pixels);
}

} // namespace quib
