#include "app/notch/geometry.h"

#include <algorithm>

namespace quib {

namespace {

constexpr double NotchSlack = 30; // 15 points on each side.
constexpr double ImitationWidth = 190;
constexpr double LeastImitationHeight = 24;

/// A rectangle at the top centre of the screen that reaches `above` points beyond its edge.
QRectF hung(const QRectF& frame, double width, double below, double above)
{
    return {frame.center().x() - width / 2, frame.top() - above, width, above + below};
}

bool hasInset(const Screen& screen)
{
    return screen.topInset > 0;
}

} // namespace

std::optional<Screen> chooseScreen(const QList<Screen>& screens)
{
    if (screens.isEmpty()) {
        return std::nullopt;
    }
    const auto notched = std::ranges::find_if(screens, hasInset);
    if (notched != screens.end()) {
        return *notched;
    }
    const auto main = std::ranges::find_if(screens, &Screen::isMain);
    return main != screens.end() ? *main : screens.front();
}

Notch notchOf(const Screen& screen)
{
    if (hasInset(screen) && screen.leftStrip && screen.rightStrip) {
        const auto width = screen.frame.width() - *screen.leftStrip - *screen.rightStrip;
        return {.size = {width, screen.topInset}, .isReal = true};
    }
    const auto bar = screen.visibleFrame.top() - screen.frame.top();
    return {.size = {ImitationWidth, std::max(LeastImitationHeight, bar)}};
}

QRectF panelFrame(const Screen& screen)
{
    return hung(screen.frame, PanelSize.width(), PanelSize.height(), 0);
}

QRectF expandedRect(const Screen& screen)
{
    constexpr double Margin = 4;
    constexpr double Above = 10;
    return hung(screen.frame, CardInPanel.width(), CardInPanel.height(), Above)
        .adjusted(-Margin, -Margin, Margin, Margin);
}

QRectF collapsedRect(const Screen& screen, QSizeF notchSize, bool timerRuns)
{
    const auto wings = timerRuns ? WingsWidth : 0;
    return hung(screen.frame, wings + notchSize.width() + NotchSlack, notchSize.height() + 6, 10);
}

} // namespace quib
