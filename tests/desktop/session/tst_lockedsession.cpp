#include "desktop/desk/deskconnection.h"
#include "platform/linux/base/privatebus.h"
#include "support/fakes/lockservices.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// While the session is locked the card shows nothing to whoever stands there.
class LockedSessionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void locked_theCardClosesAndThePointerOpensNothing_data();
    void locked_theCardClosesAndThePointerOpensNothing();
    void unlocked_whatWasPinnedIsBack();
    void locked_aSecondStartWaits();
    void locked_theRunningTimerIsNotShown();
};

namespace {

/// Covers the screen but for the panel, which has come above it.
class Locker {
public:
    explicit Locker(const Desk& desk)
        : m_server(desk.variable(u"DISPLAY"_s))
    {
        const auto window = m_server.createUnmanaged({0, 0, 1600, 900}, 0x305030);
        const uint32_t below = XCB_STACK_MODE_BELOW;
        xcb_configure_window(m_server.xcb, window, XCB_CONFIG_WINDOW_STACK_MODE, &below);
        xcb_map_window(m_server.xcb, window);
        xcb_flush(m_server.xcb);
    }

private:
    Desk::Connection m_server;
};

/// A desk whose system tells of locked sessions, and that has a screen saver.
struct LockableDesk : Desk {
    PrivateBus systemBus{u"system"_s};
    std::unique_ptr<LoginService> login;
    std::unique_ptr<SaverService> saver;
    std::unique_ptr<Locker> locker;

    LockableDesk()
    {
        systemBus.start();
        setVariable(u"DBUS_SYSTEM_BUS_ADDRESS"_s, systemBus.address());
        setVariable(u"XDG_SESSION_ID"_s, QString::fromLatin1(LoginService::SessionId));
        login = std::make_unique<LoginService>(systemBus.address());
        saver = std::make_unique<SaverService>(variable(u"DBUS_SESSION_BUS_ADDRESS"_s),
                                               u"org.freedesktop.ScreenSaver"_s);
    }

    void lock(bool byLoginService)
    {
        locker = std::make_unique<Locker>(*this);
        tell(byLoginService, true);
    }

    void unlock(bool byLoginService)
    {
        locker.reset();
        tell(byLoginService, false);
    }

    bool staysClosed() const
    {
        return waitForLasting("the card to be closed", [this] { return !isExpanded(); });
    }

private:
    void tell(bool byLoginService, bool isLocked) const
    {
        if (byLoginService) {
            login->setLocked(isLocked);
        } else {
            saver->setActive(isLocked);
        }
    }
};

} // namespace

void LockedSessionTest::locked_theCardClosesAndThePointerOpensNothing_data()
{
    QTest::addColumn<bool>("byLoginService");

    QTest::addRow("as the login service says") << true;
    QTest::addRow("as the screen saver says") << false;
}

void LockedSessionTest::locked_theCardClosesAndThePointerOpensNothing()
{
    QFETCH(const bool, byLoginService);
    LockableDesk desk;
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    QVERIFY(desk.isExpanded());

    desk.lock(byLoginService);
    QVERIFY(desk.staysClosed());
    desk.moveTo(Desk::FarAway);
    desk.moveTo(Desk::Notch);
    QVERIFY(desk.staysClosed());

    desk.unlock(byLoginService);
    QVERIFY(desk.waitForExpanded(true));
}

void LockedSessionTest::unlocked_whatWasPinnedIsBack()
{
    LockableDesk desk;
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.showTab(3);
    desk.click(Desk::Pin);
    desk.moveTo(Desk::FarAway);
    desk.lock(true);
    QVERIFY(desk.staysClosed());

    desk.unlock(true);

    QVERIFY(desk.waitForExpanded(true));
    QCOMPARE(desk.selectedTab(), 3);
}

void LockedSessionTest::locked_aSecondStartWaits()
{
    LockableDesk desk;
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.lock(true);
    QVERIFY(desk.staysClosed());
    desk.moveTo(Desk::FarAway);

    QCOMPARE(desk.runQuib(), 0);
    QVERIFY(desk.staysClosed());

    desk.unlock(true);
    QVERIFY(desk.waitForExpanded(true));
}

void LockedSessionTest::locked_theRunningTimerIsNotShown()
{
    LockableDesk desk;
    desk.writeData(R"({"clients": [], "tasks": [], "shelf": [], "launch": [], "notes": "",
        "entries": [{"id": "6F1C0000-0000-4000-8000-000000000002", "note": "",
        "start": "2026-03-02T09:00:00Z"}]})");
    const auto quib = desk.startQuib();
    constexpr QPoint Wing{800 - 100 - 60, 6};
    QTRY_COMPARE(desk.pixel(Wing), QColor(Qt::black));

    desk.lock(true);

    QTRY_VERIFY(desk.pixel(Wing) != QColor(Qt::black));
    desk.unlock(true);
    QTRY_COMPARE(desk.pixel(Wing), QColor(Qt::black));
}

QTEST_GUILESS_MAIN(LockedSessionTest)
#include "tst_lockedsession.moc"
