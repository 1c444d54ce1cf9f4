// How each compositor is started without a screen.
#include "desktop/wayland/waylanddesk.h"
#include "support/writefile.h"

#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

constexpr int Width = 1600;
constexpr int Height = 900;

QString number(double value)
{
    return QString::number(value);
}

} // namespace

QStringList WaylandDesk::command()
{
    QStringList words;
    switch (m_options.kind) {
    case Kind::Sway: words = swayCommand(); break;
    case Kind::KWin: words = kwinCommand(); break;
    case Kind::Mutter: words = mutterCommand(); break;
    }
    if (QStandardPaths::findExecutable(words.constFirst()).isEmpty()) {
        m_refusal = words.constFirst() + u" is not installed"_s;
        return {};
    }
    return words;
}

/// A program that writes down what a compositor calls its displays, and stays, since mutter ends
/// with the program that it has started.
QString WaylandDesk::announcer() const
{
    auto path = writeFile(folder(u"announcer"_s), R"(#!/bin/sh
printf '%s\n%s\n%s\n' "$WAYLAND_DISPLAY" "$DISPLAY" "$XAUTHORITY" >"$HOME/displays.part"
mv "$HOME/displays.part" "$HOME/displays"
exec sleep infinity
)");
    QFile::setPermissions(path, QFile::ReadOwner | QFile::ExeOwner);
    handOver(path);
    return path;
}

QStringList WaylandDesk::swayCommand()
{
    setVariable(u"WLR_BACKENDS"_s, u"headless"_s);
    setVariable(u"WLR_LIBINPUT_NO_DEVICES"_s, u"1"_s);
    setVariable(u"WLR_RENDERER"_s, u"pixman"_s);
    setVariable(u"WLR_HEADLESS_OUTPUTS"_s, QString::number(m_options.outputs));
    const auto scale = m_options.scale;
    auto settings = u"output * mode --custom %1x%2@60Hz scale %3\n"_s.arg(
        number(Width * scale), number(Height * scale), number(scale));
    for (int i = 0; i < m_options.outputs; ++i) {
        settings += u"output HEADLESS-%1 position %2 0\n"_s.arg(i + 1).arg(i * Width);
    }
    settings += u"xwayland %1\ndefault_border none\n"
                "focus_on_window_activation focus\nexec exec %2\n"_s.arg(
                    m_options.xwayland ? u"enable"_s : u"disable"_s, announcer());
    const auto file = writeFile(folder(u"sway.conf"_s), settings.toUtf8());
    handOver(file);
    return {u"sway"_s, u"-c"_s, file};
}

/// The installed program has capabilities, with which the kernel starts it for few. A copy has
/// none.
QStringList WaylandDesk::kwinCommand()
{
    setVariable(u"KWIN_WAYLAND_NO_PERMISSION_CHECKS"_s, u"1"_s);
    setVariable(u"KWIN_SCREENSHOT_NO_PERMISSION_CHECKS"_s, u"1"_s);
    setVariable(u"KWIN_COMPOSE"_s, u"O2"_s); // Else nobody takes pictures.
    setVariable(u"LIBGL_ALWAYS_SOFTWARE"_s, u"1"_s);
    setVariable(u"XDG_CURRENT_DESKTOP"_s, u"KDE"_s);
    const auto installed = QStandardPaths::findExecutable(u"kwin_wayland"_s);
    const auto copy = folder(u"kwin_wayland"_s);
    if (installed.isEmpty() || !QFile::copy(installed, copy)) {
        return {u"kwin_wayland"_s};
    }
    handOver(copy);
    QStringList words{copy,
                      u"--virtual"_s,
                      u"--no-lockscreen"_s,
                      u"--no-global-shortcuts"_s,
                      u"--width"_s,
                      number(Width),
                      u"--height"_s,
                      number(Height),
                      u"--scale"_s,
                      number(m_options.scale),
                      u"--output-count"_s,
                      QString::number(m_options.outputs)};
    if (m_options.xwayland) {
        words << u"--xwayland"_s;
    }
    return words << announcer();
}

QStringList WaylandDesk::mutterCommand()
{
    setVariable(u"GSETTINGS_BACKEND"_s, u"memory"_s);
    setVariable(u"XDG_CURRENT_DESKTOP"_s, u"GNOME"_s);
    setVariable(u"LIBGL_ALWAYS_SOFTWARE"_s, u"1"_s);
    QStringList words{u"mutter"_s, u"--headless"_s, u"--wayland"_s};
    for (int i = 0; i < m_options.outputs; ++i) {
        words << u"--virtual-monitor"_s << u"%1x%2"_s.arg(Width).arg(Height);
    }
    if (!m_options.xwayland) {
        words << u"--no-x11"_s;
    }
    return words << u"--"_s << announcer();
}
