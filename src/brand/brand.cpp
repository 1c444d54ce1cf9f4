#include "brand/brand.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace quib {

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

QColor Brand::white(double opacity)
{
    return QColor::fromRgbF(1, 1, 1, static_cast<float>(opacity));
}

} // namespace quib
