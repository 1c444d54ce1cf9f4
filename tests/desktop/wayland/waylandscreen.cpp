// What pointer and keys do on the desk, and what is seen there.
#include "desktop/desk/places.h"
#include "desktop/wayland/waylanddesk.h"
#include "desktop/wayland/xpanel.h"

#include <QHash>

#include <algorithm>

#include <linux/input-event-codes.h>

using namespace Qt::StringLiterals;

namespace {

constexpr QRect Panel{420, 0, 760, 330}; ///< The window of the panel.

int codeOf(const QString& key)
{
    static const QHash<QString, int> Named{
        {u"Return"_s, KEY_ENTER},  {u"Escape"_s, KEY_ESC},      {u"Tab"_s, KEY_TAB},
        {u"space"_s, KEY_SPACE},   {u" "_s, KEY_SPACE},         {u"BackSpace"_s, KEY_BACKSPACE},
        {u"ctrl"_s, KEY_LEFTCTRL}, {u"shift"_s, KEY_LEFTSHIFT},
    };
    static const QList<std::pair<QString, int>> Rows{{u"1234567890"_s, KEY_1},
                                                     {u"qwertyuiop"_s, KEY_Q},
                                                     {u"asdfghjkl"_s, KEY_A},
                                                     {u"zxcvbnm"_s, KEY_Z}};
    for (const auto& [keys, first] : Rows) {
        if (const auto place = keys.indexOf(key); place >= 0 && key.size() == 1) {
            return first + static_cast<int>(place);
        }
    }
    return Named.value(key);
}

} // namespace

void WaylandDesk::tell(const QString& order) const
{
    m_hand->write(order.toUtf8() + '\n');
    m_hand->waitForBytesWritten();
    while (!m_hand->canReadLine() && m_hand->waitForReadyRead(10'000)) { }
    if (const auto answer = m_hand->readLine(); answer != "done\n") {
        qWarning("the hand does not %s", qPrintable(order));
    }
}

void WaylandDesk::moveTo(QPoint point) const
{
    tell(u"move %1 %2"_s.arg(point.x()).arg(point.y()));
    m_place = point;
}

void WaylandDesk::glideTo(QPoint point) const
{
    constexpr int Step = 8;
    const auto from = m_place;
    const auto way = point - from;
    const int steps = 1 + qMax(qAbs(way.x()), qAbs(way.y())) / Step;
    for (int i = 1; i <= steps; ++i) {
        moveTo(from + way * i / steps);
    }
}

void WaylandDesk::click(QPoint point) const
{
    moveTo(point);
    button(true);
    button(false);
}

void WaylandDesk::button(bool isDown) const
{
    tell(u"button %1 %2"_s.arg(BTN_LEFT).arg(int(isDown)));
}

void WaylandDesk::type(const QString& text) const
{
    for (const auto letter : text) {
        key(letter.isUpper() ? u"shift+"_s + letter.toLower() : QString(letter));
    }
}

void WaylandDesk::key(const QString& name) const
{
    auto keys = name.split(u'+');
    for (const auto& each : keys) {
        tell(u"key %1 1"_s.arg(codeOf(each)));
    }
    std::ranges::reverse(keys);
    for (const auto& each : keys) {
        tell(u"key %1 0"_s.arg(codeOf(each)));
    }
}

void WaylandDesk::showTab(int number) const
{
    click(places::tabButton(number));
    waitFor("the tab", [&] { return selectedTab() == number; });
}

void WaylandDesk::openWithPointer() const
{
    glideTo(Notch);
    waitForExpanded(true);
    moveTo(InTheCard);
}

bool WaylandDesk::pressField(QPoint field, Output& heard) const
{
    click(field);
    return waitFor("the keyboard", [&] { return !hasKeyboard(heard); });
}

bool WaylandDesk::hasKeyboard(Output& heard)
{
    return heard.count("focus") > heard.count("blur");
}

QImage WaylandDesk::pictureByProgram() const
{
    const auto place
        = u"%1,%2 %3x%4"_s.arg(Panel.x()).arg(Panel.y()).arg(Panel.width()).arg(Panel.height());
    const auto file = folder(u"runtime/picture.png"_s);
    const auto camera = m_options.kind == Kind::Sway
        ? start(u"grim"_s, {u"-l"_s, u"1"_s, u"-g"_s, place, file})
        : start(QStringLiteral(KWIN_CAMERA), {place, file});
    if (!camera->waitForFinished(10'000) || camera->exitCode() != 0) {
        qWarning("no picture: %s", camera->readAllStandardError().constData());
        return {};
    }
    return QImage(file);
}

QImage WaylandDesk::picture() const
{
    return hasLayers() ? pictureByProgram() : m_xPanel->picture(Panel);
}

bool WaylandDesk::hasXPanel() const
{
    const auto tool = start(u"xwininfo"_s, {u"-root"_s, u"-tree"_s});
    tool->waitForFinished(10'000);
    return tool->readAllStandardOutput().contains(R"("Korvel Quib": ("quib")");
}

bool WaylandDesk::isPanelShown() const
{
    const auto seen = picture();
    return !seen.isNull() && seen.pixelColor(scaled({380, 12})) == QColor(Qt::black);
}

/// By the corner of the card that is black only once the spring has come to rest.
bool WaylandDesk::isExpanded() const
{
    const auto seen = picture();
    return !seen.isNull() && seen.pixelColor(scaled({42, 255})) == QColor(Qt::black)
        && seen.pixelColor(scaled({380, 287})) == QColor(Qt::black);
}

/// A window of X has been large before, and lies above others as far as it reaches.
bool WaylandDesk::isCollapsed() const
{
    return hasLayers() ? !isExpanded() : m_xPanel->place().value_or(Panel).size() != Panel.size();
}

int WaylandDesk::selectedTab() const
{
    const auto seen = picture();
    for (int number = 0; number < 7 && !seen.isNull(); ++number) {
        const auto colour = seen.pixelColor(scaled({30 + 22 + 20 + 4 + 32 * number, 23}));
        if (colour.blue() > 100 && colour.blue() > colour.green() * 3 / 2) {
            return number;
        }
    }
    return -1;
}

QPoint WaylandDesk::scaled(QPoint point) const
{
    return (QPointF(point) * m_options.scale).toPoint();
}

/// Compositors hear of a window of X that has grown after X, and until then the pointer falls
/// through.
bool WaylandDesk::waitForExpanded(bool expanded) const
{
    if (expanded && !hasLayers()) {
        return waitForLasting("the panel to expand", [this] { return isExpanded(); });
    }
    return waitFor(expanded ? "the panel to expand" : "the panel to collapse",
                   [&] { return expanded ? isExpanded() : isCollapsed(); });
}
