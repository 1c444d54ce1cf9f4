#include "platform/linux/session/desktoplock.h"

#include "platform/linux/base/privatebus.h"
#include "support/fakes/lockservices.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quib;

/// Who says that the session is locked.
class DesktopLockTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void nobodySays_isNotLocked();
    void loginService_saysSo_data();
    void loginService_saysSo();
    void loginService_lockedBefore_isLocked();
    void loginService_othersOnItsBus_sayNothing();
    void loginService_restarted_isAskedAgain();
    void screenSaver_saysSo_data();
    void screenSaver_saysSo();
    void screenSaver_activeBefore_isLocked();
    void screenSaver_died_isNotLocked();
    void both_lockedUntilBothSayOtherwise();
    void busLost_isLockedUntilSomebodySaysOtherwise_data();
    void busLost_isLockedUntilSomebodySaysOtherwise();
    void screenSaver_strangersSayNothing();
    void hungLoginService_keepsNobodyWaiting();

private:
    void makeLock();

    std::unique_ptr<PrivateBus> m_session;
    std::unique_ptr<PrivateBus> m_system;
    std::unique_ptr<DesktopLock> m_lock;
};

void DesktopLockTest::init()
{
    m_session = std::make_unique<PrivateBus>(u"session"_s);
    m_system = std::make_unique<PrivateBus>(u"system"_s);
    QVERIFY(m_session->start());
    QVERIFY(m_system->start());
    qputenv("XDG_SESSION_ID", LoginService::SessionId);
}

void DesktopLockTest::cleanup()
{
    m_lock.reset();
    m_system.reset();
    m_session.reset();
}

void DesktopLockTest::makeLock()
{
    const auto session = std::make_shared<SessionBus>(m_session->address());
    const auto system = std::make_shared<Bus>(m_system->address());
    m_lock = std::make_unique<DesktopLock>(session, system);
    QTRY_VERIFY(session->isConnected() && system->isConnected());
}

void DesktopLockTest::nobodySays_isNotLocked()
{
    makeLock();

    QVERIFY(!m_lock->isLocked());
}

void DesktopLockTest::loginService_saysSo_data()
{
    QTest::addColumn<QByteArray>("sessionId");

    QTest::addRow("of our session") << QByteArray(LoginService::SessionId);
    QTest::addRow("of the user's, where ours is unknown") << QByteArray("gone");
    QTest::addRow("of the user's, where we are in none") << QByteArray();
}

void DesktopLockTest::loginService_saysSo()
{
    QFETCH(const QByteArray, sessionId);
    qputenv("XDG_SESSION_ID", sessionId);
    LoginService login(m_system->address());
    makeLock();
    const QSignalSpy changes(m_lock.get(), &SessionLock::isLockedChanged);

    // Again and again: what is said before the session is known is read with it.
    QTRY_VERIFY((login.setLocked(true), m_lock->isLocked()));
    QCOMPARE(changes.size(), 1);

    login.setLocked(false);
    QTRY_VERIFY(!m_lock->isLocked());
    QCOMPARE(changes.size(), 2);
}

void DesktopLockTest::loginService_lockedBefore_isLocked()
{
    LoginService login(m_system->address());
    login.setLocked(true);

    makeLock();

    QTRY_VERIFY(m_lock->isLocked());
}

void DesktopLockTest::loginService_othersOnItsBus_sayNothing()
{
    LoginService login(m_system->address());
    login.setLocked(true);
    makeLock();
    QTRY_VERIFY(m_lock->isLocked());
    const QSignalSpy changes(m_lock.get(), &SessionLock::isLockedChanged);

    m_system->connection().send(LoginService::announcement(false));
    login.setLocked(true);
    login.setLocked(false); // Comes after both.

    QTRY_VERIFY(!m_lock->isLocked());
    QCOMPARE(changes.size(), 1);
}

void DesktopLockTest::loginService_restarted_isAskedAgain()
{
    auto login = std::make_unique<LoginService>(m_system->address());
    makeLock();
    QTRY_VERIFY((login->setLocked(true), m_lock->isLocked()));

    login.reset();
    login = std::make_unique<LoginService>(m_system->address());

    QTRY_VERIFY(!m_lock->isLocked());
}

void DesktopLockTest::screenSaver_saysSo_data()
{
    QTest::addColumn<QString>("name");

    for (const auto* name :
         {"org.freedesktop.ScreenSaver", "org.gnome.ScreenSaver", "org.mate.ScreenSaver",
          "org.cinnamon.ScreenSaver", "org.xfce.ScreenSaver"}) {
        QTest::addRow("%s", name) << QString::fromLatin1(name);
    }
}

void DesktopLockTest::screenSaver_saysSo()
{
    QFETCH(const QString, name);
    makeLock();
    SaverService saver(m_session->address(), name);

    QTRY_VERIFY((saver.setActive(true), m_lock->isLocked()));

    saver.setActive(false);
    QTRY_VERIFY(!m_lock->isLocked());
}

void DesktopLockTest::screenSaver_activeBefore_isLocked()
{
    SaverService saver(m_session->address(), u"org.gnome.ScreenSaver"_s);
    saver.setActive(true);

    makeLock();

    QTRY_VERIFY(m_lock->isLocked());
}

void DesktopLockTest::screenSaver_died_isNotLocked()
{
    SaverService saver(m_session->address(), u"org.gnome.ScreenSaver"_s);
    saver.setActive(true);
    makeLock();
    QTRY_VERIFY(m_lock->isLocked());

    saver.die();

    QTRY_VERIFY(!m_lock->isLocked());
}

void DesktopLockTest::both_lockedUntilBothSayOtherwise()
{
    LoginService login(m_system->address());
    login.setLocked(true);
    SaverService saver(m_session->address(), u"org.gnome.ScreenSaver"_s);
    saver.setActive(true);
    makeLock();
    QTRY_VERIFY(m_lock->isLocked());
    const QSignalSpy changes(m_lock.get(), &SessionLock::isLockedChanged);

    login.setLocked(false);
    saver.setActive(false);

    QTRY_VERIFY(!m_lock->isLocked());
    QTRY_COMPARE(changes.size(), 1);
}

void DesktopLockTest::busLost_isLockedUntilSomebodySaysOtherwise_data()
{
    QTest::addColumn<bool>("isSystemBus");

    QTest::addRow("that of the system") << true;
    QTest::addRow("that of the session") << false;
}

void DesktopLockTest::busLost_isLockedUntilSomebodySaysOtherwise()
{
    QFETCH(const bool, isSystemBus);
    auto& bus = isSystemBus ? *m_system : *m_session;
    auto login = std::make_unique<LoginService>(m_system->address());
    auto saver = std::make_unique<SaverService>(m_session->address(), u"org.gnome.ScreenSaver"_s);
    login->setLocked(isSystemBus);
    saver->setActive(!isSystemBus);
    const auto session = std::make_shared<SessionBus>(m_session->address());
    const auto system = std::make_shared<Bus>(m_system->address());
    m_lock = std::make_unique<DesktopLock>(session, system);
    QTRY_VERIFY(m_lock->isLocked());
    const QSignalSpy lost(isSystemBus ? system.get() : session.get(), &Bus::lost);

    bus.die();
    QTRY_COMPARE(lost.size(), 1);
    QVERIFY(m_lock->isLocked());
    login.reset();
    saver.reset();
    QVERIFY(bus.start());

    QTRY_VERIFY(!m_lock->isLocked());
}

void DesktopLockTest::screenSaver_strangersSayNothing()
{
    makeLock();
    SaverService saver(m_session->address(), u"org.gnome.ScreenSaver"_s);
    const QSignalSpy changes(m_lock.get(), &SessionLock::isLockedChanged);
    auto lie = QDBusMessage::createSignal(u"/x"_s, u"org.mate.ScreenSaver"_s, u"ActiveChanged"_s);
    lie << true;

    m_session->connection().send(lie);
    QTRY_VERIFY((saver.setActive(true), m_lock->isLocked()));
    saver.setActive(false);

    QTRY_VERIFY(!m_lock->isLocked());
    QCOMPARE(changes.size(), 2);
}

/// It would be asked here for ever where anybody waited.
void DesktopLockTest::hungLoginService_keepsNobodyWaiting()
{
    m_system->hang();
    SaverService saver(m_session->address(), u"org.gnome.ScreenSaver"_s);
    saver.setActive(true);

    m_lock = std::make_unique<DesktopLock>(std::make_shared<SessionBus>(m_session->address()),
                                           std::make_shared<Bus>(m_system->address()));

    QTRY_VERIFY(m_lock->isLocked());
    m_system->goOn();
}

QTEST_GUILESS_MAIN(DesktopLockTest)
#include "tst_desktoplock.moc"
