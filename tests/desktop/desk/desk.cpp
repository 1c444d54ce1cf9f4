#include "desktop/desk/desk.h"

#include "desktop/desk/deskconnection.h"

using namespace Qt::StringLiterals;

Desk::Desk()
    : Desk(Options{})
{
}

Desk::Desk(Options options)
    : m_options(options)
{
    setVariable(u"QT_SCALE_FACTOR"_s, QString::number(options.scale));
    startServer();
    if (options.sessionBus) {
        startBus();
    }
    startWindowManager();
    if (options.compositor) {
        startCompositor();
    }
    moveTo(FarAway);
}

Program Desk::startQuib(QStringList command, const QStringList& arguments)
{
    command << quib() << arguments;
    const auto display = variable(u"DISPLAY"_s);
    setVariable(u"DISPLAY"_s, m_quibsDisplay.isEmpty() ? display : m_quibsDisplay);
    const auto first = command.takeFirst();
    auto program = start(first, command);
    setVariable(u"DISPLAY"_s, display);
    waitFor("the panel", [this] {
        return isShown(u"Korvel Quib"_s) && pixel(places::InTheNotch) == QColor(Qt::black);
    });
    return program;
}

Program Desk::startListener()
{
    auto listener = start(
        u"xev"_s,
        {u"-geometry"_s, u"1600x900+0+0"_s, u"-event"_s, u"button"_s, u"-event"_s, u"keyboard"_s});
    waitFor("the listener", [this] { return isShown(u"Event Tester"_s); });
    click(FarAway); // Gives it the keyboard.
    waitFor("the listener's first click", [&] {
        listener->waitForReadyRead(50);
        return listener->peek(1 << 20).contains("ButtonRelease");
    });
    return listener;
}

QString Desk::dragSource()
{
    return QStringLiteral(DRAG_SOURCE);
}
