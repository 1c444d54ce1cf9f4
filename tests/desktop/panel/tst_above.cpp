#include "desktop/desk/desk.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr QPoint BeneathTheNotch{800, 150}; ///< In the window that lies across the notch.
constexpr QPoint OnTheNotch = places::InTheNotch;

Program startTerminal(Desk& desk, const QString& title, const QString& colour)
{
    return desk.start(u"xterm"_s,
                      {u"-T"_s, title, u"-geometry"_s, u"100x20+500+0"_s, u"-bg"_s, colour, u"-e"_s,
                       u"sleep"_s, u"infinity"_s});
}

/// Asks the window manager, as task bars do.
void ask(Desk& desk, const QStringList& arguments)
{
    desk.start(u"wmctrl"_s, arguments)->waitForFinished();
}

void bringToFront(Desk& desk, const QString& title)
{
    ask(desk, {u"-a"_s, title});
}

} // namespace

/// The closed notch is seen above every window that a window manager shows.
class AboveTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void windows_lieBeneathTheNotch_data();
    void windows_lieBeneathTheNotch();
};

void AboveTest::windows_lieBeneathTheNotch_data()
{
    QTest::addColumn<QString>("windowManager");
    QTest::addColumn<bool>("isThereFirst");

    for (const auto& name :
         {u"openbox"_s, u"xfwm4 --compositor=off"_s, u"xfwm4 --compositor=on --vblank=off"_s}) {
        QTest::addRow("%s, then the panel", qPrintable(name)) << name << true;
        QTest::addRow("the panel, then %s", qPrintable(name)) << name << false;
    }
}

void AboveTest::windows_lieBeneathTheNotch()
{
    QFETCH(const QString, windowManager);
    QFETCH(const bool, isThereFirst);
    Desk desk;
    desk.killWindowManager();
    Program quib;
    if (!isThereFirst) {
        quib = desk.startQuib();
    }
    desk.startWindowManager(windowManager);
    if (isThereFirst) {
        quib = desk.startQuib();
    }
    const auto green = startTerminal(desk, u"green"_s, u"#00ff00"_s);
    // Asked often: the window manager may just be starting.
    QTRY_VERIFY_WITH_TIMEOUT((bringToFront(desk, u"green"_s), desk.titleInFront() == u"green"_s),
                             15'000);
    QTRY_COMPARE(desk.pixel(BeneathTheNotch), QColor(Qt::green));
    QTRY_COMPARE(desk.pixel(OnTheNotch), QColor(Qt::black));

    const auto red = startTerminal(desk, u"red"_s, u"#ff0000"_s);
    QVERIFY(desk.waitForFront(u"red"_s));
    QTRY_COMPARE(desk.pixel(BeneathTheNotch), QColor(Qt::red));
    QTRY_COMPARE(desk.pixel(OnTheNotch), QColor(Qt::black));

    bringToFront(desk, u"green"_s);
    QTRY_COMPARE(desk.pixel(BeneathTheNotch), QColor(Qt::green));
    QTRY_COMPARE(desk.pixel(OnTheNotch), QColor(Qt::black));

    ask(desk, {u"-r"_s, u"green"_s, u"-b"_s, u"add,maximized_vert,maximized_horz"_s});
    QTRY_COMPARE(desk.pixel({1500, 800}), QColor(Qt::green));
    QTRY_COMPARE(desk.pixel(OnTheNotch), QColor(Qt::black));

    ask(desk, {u"-r"_s, u"red"_s, u"-b"_s, u"add,fullscreen"_s});
    bringToFront(desk, u"red"_s);
    QTRY_COMPARE(desk.pixel({1500, 2}), QColor(Qt::red));
    QTRY_COMPARE(desk.pixel(OnTheNotch), QColor(Qt::black));

    for (const auto* terminal : {&green, &red}) {
        (*terminal)->kill();
        (*terminal)->waitForFinished();
    }
}

QTEST_GUILESS_MAIN(AboveTest)
#include "tst_above.moc"
