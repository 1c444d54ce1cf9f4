#include "platform/linux/windowsystem.h"

#include <QLocalServer>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quib;

namespace {

bool hasXServerNamed(const QByteArray& display)
{
    const auto before = qgetenv("DISPLAY");
    qputenv("DISPLAY", display);
    const auto has = lookAround().hasXServer();
    qputenv("DISPLAY", before);
    return has;
}

bool hasLayerShellAt(const QString& socket)
{
    qputenv("WAYLAND_DISPLAY", socket.toLocal8Bit());
    const auto has = lookAround().hasLayerShell();
    qunsetenv("WAYLAND_DISPLAY");
    return has;
}

} // namespace

/// Which way the panel takes to the screen, decided before Qt is started.
class WindowSystemTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void choice_data();
    void choice();
    void choice_ofLayerShell_doesNotWakeTheXServer();
    void choice_ofX_asksNoCompositor();
    void lookAround_findsTheXServerThatIsThere();
    void lookAround_withoutACompositor_findsNoLayerShell_data();
    void lookAround_withoutACompositor_findsNoLayerShell();
    void lookAround_hungCompositor_isGivenUp();
};

void WindowSystemTest::choice_data()
{
    QTest::addColumn<QByteArray>("asked");
    QTest::addColumn<QString>("there"); // w: a Wayland session, l: its layer shell, x: an X server
    QTest::addColumn<QByteArray>("platform");
    QTest::addColumn<QString>("problem");

    const auto noX = u"there is no X display to show the panel on"_s;
    const auto noLayer = u"this Wayland compositor has no layer shell, and "_s + noX;
    const auto notBy = u"the panel can not be shown by QT_QPA_PLATFORM=%1 here"_s;
    QTest::addRow("KDE, sway") << ""_ba << u"wlx"_s << "wayland;xcb"_ba << QString();
    QTest::addRow("sway without X") << ""_ba << u"wl"_s << "wayland;xcb"_ba << QString();
    QTest::addRow("GNOME") << ""_ba << u"wx"_s << "xcb"_ba << QString();
    QTest::addRow("GNOME without X") << ""_ba << u"w"_s << ""_ba << noLayer;
    QTest::addRow("X") << ""_ba << u"x"_s << "xcb"_ba << QString();
    QTest::addRow("a console") << ""_ba << u""_s << ""_ba << noX;
    QTest::addRow("X is asked for") << "xcb"_ba << u"wlx"_s << "xcb"_ba << QString();
    QTest::addRow("X before Wayland")
        << "xcb;wayland"_ba << u"wlx"_s << "xcb;wayland"_ba << QString();
    QTest::addRow("Wayland before X, on GNOME")
        << "wayland;xcb"_ba << u"wx"_s << "xcb"_ba << QString();
    QTest::addRow("with a setting of Qt's")
        << "wayland-egl;xcb"_ba << u"wl"_s << "wayland-egl;xcb"_ba << QString();
    QTest::addRow("Wayland alone, on GNOME")
        << "wayland"_ba << u"wx"_s << ""_ba << notBy.arg(u"wayland"_s);
    QTest::addRow("what shows no panel")
        << "eglfs"_ba << u"wlx"_s << ""_ba << notBy.arg(u"eglfs"_s);
}

void WindowSystemTest::choice()
{
    QFETCH(QByteArray, asked);
    QFETCH(QString, there);

    const auto chosen = chooseWindowSystem({.asked = asked,
                                            .isWaylandSession = there.contains(u'w'),
                                            .hasLayerShell = [&] { return there.contains(u'l'); },
                                            .hasXServer = [&] { return there.contains(u'x'); }});

    QTEST(chosen.qtPlatform, "platform");
    QTEST(chosen.problem, "problem");
}

/// Compositors start theirs when somebody first asks for it.
void WindowSystemTest::choice_ofLayerShell_doesNotWakeTheXServer()
{
    bool isAsked = false;

    chooseWindowSystem({.asked = {},
                        .isWaylandSession = true,
                        .hasLayerShell = [] { return true; },
                        .hasXServer = [&] { return isAsked = true; }});

    QVERIFY(!isAsked);
}

void WindowSystemTest::choice_ofX_asksNoCompositor()
{
    bool isAsked = false;

    chooseWindowSystem({.asked = "xcb",
                        .isWaylandSession = true,
                        .hasLayerShell = [&] { return isAsked = true; },
                        .hasXServer = [] { return true; }});

    QVERIFY(!isAsked);
}

void WindowSystemTest::lookAround_findsTheXServerThatIsThere()
{
    QVERIFY(lookAround().hasXServer());
    QVERIFY(!hasXServerNamed({}));
    QVERIFY(!hasXServerNamed(":9999"));
}

void WindowSystemTest::lookAround_withoutACompositor_findsNoLayerShell_data()
{
    QTest::addColumn<QString>("socket");

    QTest::addRow("none named") << QString();
    QTest::addRow("one that has gone") << u"/nonexistent/wayland-0"_s;
}

void WindowSystemTest::lookAround_withoutACompositor_findsNoLayerShell()
{
    QFETCH(QString, socket);

    QVERIFY(!hasLayerShellAt(socket));
}

/// Who takes the call and never answers.
void WindowSystemTest::lookAround_hungCompositor_isGivenUp()
{
    const QTemporaryDir folder;
    QLocalServer compositor;
    QVERIFY(compositor.listen(folder.filePath(u"wayland-0"_s)));

    QVERIFY(!hasLayerShellAt(compositor.fullServerName()));
}

QTEST_GUILESS_MAIN(WindowSystemTest)
#include "tst_windowsystem.moc"
