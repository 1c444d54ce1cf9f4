#include "pictures/likeness.h"

#include <QHash>
#include <QList>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <functional>
#include <utility>

namespace {

constexpr int FurthestMoved = 3; // By simplifying.
constexpr int FurthestOff = FurthestMoved + 1;
constexpr int MostStrays = 4;
constexpr qsizetype LargestPalette = 256;

bool isWithin(int furthest, QRgb one, QRgb other)
{
    const std::array<int, 3> off{qRed(one) - qRed(other), qGreen(one) - qGreen(other),
                                 qBlue(one) - qBlue(other)};
    return std::ranges::all_of(off, [furthest](int by) { return std::abs(by) <= furthest; });
}

/// The colours of a picture, the most frequent ones first.
QList<QRgb> colorsOf(const QImage& picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ++counts[picture.pixel(x, y)];
        }
    }
    auto colors = counts.keys();
    std::ranges::sort(colors, std::greater(), [&counts](QRgb color) {
        return std::pair(counts[color], color); // The same picture gives the same file.
    });
    return colors;
}

QRgb darkened(QRgb color)
{
    return qRgb(qRed(color) / 2, qGreen(color) / 2, qBlue(color) / 2);
}

} // namespace

bool Likeness::isAlike() const
{
    return isSameSize && strayPixels <= MostStrays;
}

Likeness compare(const QImage& drawn, const QImage& kept)
{
    if (drawn.size() != kept.size()) {
        return {};
    }
    Likeness likeness{.isSameSize = true, .strays = kept.convertToFormat(QImage::Format_RGB32)};
    const auto found = drawn.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < found.height(); ++y) {
        for (int x = 0; x < found.width(); ++x) {
            const auto wanted = likeness.strays.pixel(x, y);
            const bool stray = !isWithin(FurthestOff, found.pixel(x, y), wanted);
            likeness.strayPixels += stray ? 1 : 0;
            likeness.strays.setPixel(x, y, stray ? qRgb(255, 0, 0) : darkened(wanted));
        }
    }
    return likeness;
}

QImage simplified(const QImage& picture)
{
    auto simple = picture.convertToFormat(QImage::Format_RGB32);
    QList<QRgb> palette;
    QHash<QRgb, QRgb> moved;
    for (const auto color : colorsOf(simple)) {
        const auto near = std::ranges::find_if(
            palette, [color](QRgb kept) { return isWithin(FurthestMoved, color, kept); });
        moved.insert(color, near == palette.end() ? color : *near);
        if (near == palette.end()) {
            palette.append(color);
        }
    }
    for (int y = 0; y < simple.height(); ++y) {
        for (int x = 0; x < simple.width(); ++x) {
            simple.setPixel(x, y, moved.value(simple.pixel(x, y)));
        }
    }
    return palette.size() > LargestPalette
        ? simple
        : simple.convertToFormat(QImage::Format_Indexed8, palette);
}
