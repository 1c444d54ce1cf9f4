#pragma once

#include "app/shell/statusitem.h"

#include <QPainter>

namespace quib {

/// Rows of the menu below.
constexpr int PinRow = 1;
constexpr int SeparatorRow = 2;
constexpr int QuitRow = 7;

/// The program's own menu.
inline QList<MenuItem> quibMenu()
{
    return {{.title = QStringLiteral("Open Quib")},
            {.title = QStringLiteral("Keep Open (Pin)"), .isCheckable = true},
            {},
            {.title = QStringLiteral("Launch at Login"), .isCheckable = true},
            {.title = QStringLiteral("Edit Shortcuts…")},
            {.title = QStringLiteral("Show Data Folder")},
            {},
            {.title = QStringLiteral("Quit Korvel Quib"), .keyEquivalent = QStringLiteral("q")}};
}

inline QList<MenuItem> pinnedMenu()
{
    auto menu = quibMenu();
    menu[PinRow].isChecked = true;
    return menu;
}

/// A square with a margin, in the sizes and the colour that the program gives.
inline StatusIcon squareIcon()
{
    StatusIcon icon{.images = {}, .accessibleName = QStringLiteral("Korvel Quib")};
    for (const auto side : {16, 22, 24, 32, 48}) {
        QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter(&image).fillRect(image.rect().adjusted(2, 2, -2, -2), Qt::black);
        icon.images << image;
    }
    return icon;
}

} // namespace quib
