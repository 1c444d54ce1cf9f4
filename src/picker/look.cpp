#include "picker/look.h"

#include "brand/brand.h"

#include <QApplication>
#include <QIcon>
#include <QPalette>
#include <QStyleFactory>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

QPalette palette()
{
    QPalette colors(Brand::popup());
    const auto surface = Brand::popup().darker(125);
    colors.setColor(QPalette::Window, Brand::popup());
    colors.setColor(QPalette::Base, surface);
    colors.setColor(QPalette::AlternateBase, surface);
    colors.setColor(QPalette::Button, Brand::popup().lighter(140));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        colors.setColor(role, Qt::white);
        colors.setColor(QPalette::Disabled, role, Brand::muted2());
    }
    colors.setColor(QPalette::PlaceholderText, Brand::muted2());
    colors.setColor(QPalette::Highlight, Brand::purple());
    colors.setColor(QPalette::HighlightedText, Qt::white);
    return colors;
}

} // namespace

void wearOurColors()
{
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    QApplication::setPalette(palette());
    QIcon::setFallbackSearchPaths({u"/usr/share/pixmaps"_s});
    QIcon::setFallbackThemeName(u"Adwaita"_s);
}

} // namespace quib
