#pragma once

#include <QList>
#include <QRectF>
#include <QSizeF>

#include <optional>

namespace quib {

/// A screen in global points, y growing downwards.
struct Screen {
    QRectF frame;
    QRectF visibleFrame; ///< Without docks and menu bars.
    double topInset = 0; ///< Height of the camera notch; 0 where there is none.
    std::optional<double>
        leftStrip; ///< Width of the usable strip left of a notch; absent where unknown.
    std::optional<double> rightStrip;
    bool isMain = false;

    bool operator==(const Screen&) const = default;
};

/// The camera notch of a screen, or the imitation drawn where there is none.
struct Notch {
    QSizeF size;
    bool isReal = false;

    bool operator==(const Notch&) const = default;
};

/// The size of the window. It never changes.
inline constexpr QSizeF PanelSize(760, 330);

/// Where the open card lies in the window.
inline constexpr QRectF CardInPanel(30, 0, 700, 290);

/// By how much the notch is wider while a timer runs, in points.
inline constexpr double WingsWidth = 184;

/// The first screen with a notch, else the main one, else the first; absent without any screen.
std::optional<Screen> chooseScreen(const QList<Screen>& screens);

Notch notchOf(const Screen& screen);

/// The window, hung at the top centre of the screen.
QRectF panelFrame(const Screen& screen);

/// Where the pointer keeps the open card open: the card, a margin of 4 points, and beyond the
/// screen's top edge.
QRectF expandedRect(const Screen& screen);

/// Where the pointer opens the card. The wings of a running timer widen it.
QRectF collapsedRect(const Screen& screen, QSizeF notchSize, bool timerRuns);

} // namespace quib
