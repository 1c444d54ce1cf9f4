// The programs that a desktop is made of.
#include "desktop/desk/deskconnection.h"

#include "support/sendsignal.h"
#include "support/writefile.h"

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

/// Sizes that screens may have beside those that the server knows: the first one, that one turned,
/// and one in which the card has no room.
constexpr auto OutputSettings = R"(
Section "ServerFlags"
  Option "AutoAddDevices" "false"
EndSection
Section "Device"
  Identifier "card"
  Driver "dummy"
  VideoRam 65536
EndSection
Section "Monitor"
  Identifier "monitor"
  HorizSync 5.0 - 1000.0
  VertRefresh 5.0 - 200.0
  Modeline "1600x900" 118.25 1600 1696 1856 2112 900 903 908 934
  Modeline "900x1600" 120.00 900 960 1056 1216 1600 1603 1613 1658
  Modeline "640x480" 23.86 640 656 720 800 480 481 484 497
EndSection
Section "Screen"
  Identifier "screen"
  Device "card"
  Monitor "monitor"
  DefaultDepth 24
  SubSection "Display"
    Depth 24
    Modes "1600x900" "900x1600" "640x480"
    Virtual 3840 2160
  EndSubSection
EndSection
)";

QString socketOf(const QString& display)
{
    return u"/tmp/.X11-unix/X"_s + display.mid(1);
}

} // namespace

Desk::~Desk()
{
    end(m_compositor);
    end(m_windowManager);
    m_connection.reset();
    if (m_withoutXInput) {
        end(m_withoutXInput);
        QFile::remove(socketOf(m_quibsDisplay));
    }
    end(m_server);
}

QStringList Desk::serverCommand() const
{
    if (!m_options.outputs) {
        return {u"Xvfb"_s, u"-screen"_s, u"0"_s, u"1600x900x24"_s};
    }
    const auto settings = folder(u"outputs.conf"_s);
    writeFile(settings, OutputSettings);
    return {u"Xorg"_s,    u"-config"_s, settings, u"-logfile"_s, folder(u"server.log"_s),
            u"-noreset"_s};
}

void Desk::startServer()
{
    auto command = serverCommand() << u"-displayfd"_s << u"1"_s << u"-nolisten"_s << u"tcp"_s;
    const auto program = command.takeFirst();
    m_server = start(program, command);
    m_server->waitForReadyRead(10'000);
    const auto display = u':' + QString::fromLatin1(m_server->readAllStandardOutput().trimmed());
    setVariable(u"DISPLAY"_s, display);
    m_connection = std::make_unique<Connection>(display);
    start(u"xsetroot"_s, {u"-solid"_s, u"#406080"_s})
        ->waitForFinished(); // Not black like the panel.
    if (!m_options.xinput) {
        hideXInput();
    }
}

/// At a display of its own, which nobody else takes while the server has its number.
void Desk::hideXInput()
{
    const auto display = variable(u"DISPLAY"_s);
    m_quibsDisplay = u":1000"_s + display.mid(1);
    m_withoutXInput
        = start(QStringLiteral(WITHOUT_XINPUT), {socketOf(m_quibsDisplay), socketOf(display)});
    m_withoutXInput->waitForReadyRead(10'000);
}

void Desk::hangServer() const
{
    sendSignal(m_server->processId(), SIGSTOP);
}

void Desk::resumeServer() const
{
    sendSignal(m_server->processId(), SIGCONT);
}

void Desk::killServer()
{
    m_connection.reset();
    killNow(m_server);
}

void Desk::setScreens(const QStringList& arguments)
{
    const auto tool = start(u"xrandr"_s, arguments);
    tool->waitForFinished();
    if (tool->exitCode() != 0) {
        qWarning("no such screens: %s", tool->readAllStandardError().constData());
    }
}

void Desk::startWindowManager(const QString& command)
{
    auto words = command.split(u' ');
    const auto program = words.takeFirst();
    if (program != u"openbox"_s) {
        m_windowManager = start(program, words);
        waitFor("the window manager", [this] { return m_connection->hasOwner("WM_S0"); });
        return;
    }
    // It announces itself before it is ready, and then overlooks windows.
    const auto ready = folder(u"window manager is ready"_s);
    QFile::remove(ready);
    m_windowManager = start(program, {u"--startup"_s, u"touch '%1'"_s.arg(ready)});
    waitFor("the window manager", [&] { return QFile::exists(ready); });
}

void Desk::killWindowManager()
{
    killNow(m_windowManager);
}

void Desk::startCompositor()
{
    m_compositor = start(u"xcompmgr"_s);
    waitFor("the compositor", [this] { return m_connection->hasOwner("_NET_WM_CM_S0"); });
}

void Desk::killCompositor()
{
    killNow(m_compositor);
}
