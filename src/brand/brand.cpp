#include "brand/brand.h"

#include <QHash>
#include <QStringView>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

QStringView withoutHashes(QStringView word)
{
    while (word.startsWith(u'#')) {
        word = word.sliced(1);
    }
    while (word.endsWith(u'#')) {
        word.chop(1);
    }
    return word;
}

bool isHexDigit(QChar c)
{
    return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f');
}

} // namespace

QColor Brand::named(const std::optional<QString>& word)
{
    const auto lower = word.value_or(QString()).toLower();
    if (lower == u"gold"_s) {
        return gold();
    }
    const auto digits = withoutHashes(lower);
    const bool isColor = digits.size() == 6 && std::ranges::all_of(digits, isHexDigit);
    return isColor ? QColor::fromRgb(digits.toUInt(nullptr, 16)) : glow(); // "purple" too.
}

QColor Brand::color(const QString& status)
{
    static const QHash<QString, QColor> colors{
        {u"lead"_s, QColor::fromRgbF(0.98F, 0.75F, 0.30F)},
        {u"design"_s, QColor::fromRgbF(0.95F, 0.45F, 0.75F)},
        {u"build"_s, purple()},
        {u"review"_s, QColor::fromRgbF(0.35F, 0.65F, 1.0F)},
        {u"live"_s, live()},
        {u"care"_s, muted()},
    };
    return colors.value(status, muted2());
}

QColor Brand::letterColor(const QString& status)
{
    const auto usual = color(status);
    return usual == purple() ? glow() : usual;
}

QColor Brand::white(double opacity)
{
    return QColor::fromRgbF(1, 1, 1, static_cast<float>(opacity));
}

} // namespace quib
