#include "picker/look.h"

#include "brand/brand.h"

#include <QApplication>
#include <QFont>
#include <QIcon>
#include <QPalette>
#include <QProxyStyle>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

/// Buttons of words alone.
class PlainStyle : public QProxyStyle {
public:
    PlainStyle()
        : QProxyStyle(u"Fusion"_s)
    {
    }

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override
    {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons
            ? 0
            : QProxyStyle::styleHint(hint, option, widget, returned);
    }
};

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

void wearOurLook(const QString& fontFamily)
{
    QApplication::setStyle(new PlainStyle); // The application takes it.
    QApplication::setPalette(palette());
    auto font = QApplication::font();
    font.setFamily(fontFamily);
    QApplication::setFont(font);
    QIcon::setFallbackSearchPaths({u"/usr/share/pixmaps"_s});
    QIcon::setFallbackThemeName(u"Adwaita"_s);
}

} // namespace quib
