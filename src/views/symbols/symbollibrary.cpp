#include "views/symbols/symbollibrary.h"

#include "views/symbols/symbolsvg.h"

#include <QFile>
#include <QHash>
#include <QStringList>
#include <QTransform>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr auto Own = "@own"_L1; ///< In the table: not an icon of that name, but made by us.
constexpr auto Fill = ".fill"_L1;

QHash<QString, QString> readAliases()
{
    QHash<QString, QString> aliases;
    QFile file(u":/quib/symbols/symbol-aliases.tsv"_s);
    if (!file.open(QIODevice::ReadOnly)) {
        return aliases;
    }
    const auto lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const auto& line : lines) {
        const auto tab = line.indexOf(u'\t');
        const auto icon = line.sliced(tab + 1);
        if (icon != Own) {
            aliases.insert(line.first(tab), icon);
        }
    }
    return aliases;
}

std::optional<QString> alias(const QString& name)
{
    static const auto aliases = readAliases();
    const auto found = aliases.find(name);
    return found == aliases.end() ? std::nullopt : std::optional(*found);
}

/// Some icons fill less of their square than the rest.
double opticalScale(const QString& icon)
{
    return icon == "play-fill"_L1 || icon == "stop-fill"_L1 ? 1.25 : 1;
}

std::optional<SymbolShape> iconShape(const QString& icon)
{
    QFile file(u":/quib/symbols/"_s + icon + u".svg"_s);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    return SymbolShape{.path = svgOutline(file.readAll()),
                       .isFilled = icon.endsWith("-fill"_L1),
                       .scale = opticalScale(icon)};
}

/// The icons that would do for a name, best first.
QStringList iconsFor(const QString& name)
{
    QStringList icons;
    if (const auto exact = alias(name)) {
        icons << *exact;
    }
    const bool isFilled = name.endsWith(Fill);
    const auto base = isFilled ? name.chopped(Fill.size()) : name;
    if (const auto outline = alias(base); isFilled && outline) {
        icons << *outline + u"-fill"_s << *outline;
    }
    auto dashed = name;
    dashed.replace(u'.', u'-');
    icons << dashed;
    if (isFilled) {
        icons << dashed.chopped(Fill.size());
    }
    return icons;
}

std::optional<SymbolShape> drawnShape(PixelDrawing drawing)
{
    const auto large = drawing ? drawing(1000, 62.5) : QPainterPath();
    return large.isEmpty()
        ? std::nullopt
        : std::optional(SymbolShape{.path = QTransform::fromScale(0.001, 0.001).map(large)});
}

std::optional<SymbolShape> simpleShape(const QString& name)
{
    auto shape = drawnShape(pixelDrawing(name));
    for (const auto& icon : iconsFor(name)) {
        if (!shape) {
            shape = iconShape(icon);
        }
    }
    return shape;
}

std::optional<QPainterPath> basePath(const QString& name, QLatin1StringView suffix)
{
    if (!name.endsWith(suffix)) {
        return std::nullopt;
    }
    const auto shape = simpleShape(name.chopped(suffix.size()));
    return shape ? std::optional(shape->path) : std::nullopt;
}

std::optional<SymbolShape> framedShape(const QString& name, QLatin1StringView suffix, Frame frame)
{
    if (const auto base = basePath(name, suffix)) {
        return SymbolShape{.path = framed(*base, frame)};
    }
    if (name.endsWith(Fill)) {
        if (const auto base = basePath(name.chopped(Fill.size()), suffix)) {
            return SymbolShape{.path = cutOutOf(frame, *base), .isFilled = true};
        }
    }
    return std::nullopt;
}

std::optional<SymbolShape> composedShape(const QString& name)
{
    if (const auto base = basePath(name, ".badge.plus"_L1)) {
        return SymbolShape{.path = withPlus(*base)};
    }
    if (const auto base = basePath(name, ".badge"_L1)) {
        return SymbolShape{.path = withBadge(*base)};
    }
    if (auto circle = framedShape(name, ".circle"_L1, Frame::Circle)) {
        return circle;
    }
    return framedShape(name, ".square"_L1, Frame::Square);
}

std::optional<SymbolShape> shapeOf(const QString& name)
{
    auto shape = simpleShape(name);
    if (!shape) {
        shape = composedShape(name);
    }
    if (shape) {
        shape->path = ownCopy(shape->path);
        shape->drawing = pixelDrawing(name);
    }
    return shape;
}

} // namespace

std::optional<SymbolShape> findSymbol(const QString& name)
{
    static QHash<QString, std::optional<SymbolShape>> known;
    const auto found = known.find(name);
    return found == known.end() ? *known.insert(name, shapeOf(name)) : *found;
}

QPainterPath ownCopy(const QPainterPath& path)
{
    QPainterPath copy;
    copy.addPath(path);
    copy.setFillRule(path.fillRule());
    return copy;
}

} // namespace quib
