#include "app/notchpanel.h"
#include "support/panel/delegatefortest.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using quib::CalendarAuthorization;
using quib::Player;
using quib::Tab;

/// While the session is locked nobody sees the card, and nobody is asked for what it would show.
class AppDelegateLockTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_quib = std::make_unique<DelegateForTest>(); }
    void cleanup() { m_quib.reset(); }

    void locking_collapsesAtOnce();
    void locked_thePointerOpensNothing();
    void locked_aDroppedFileOpensNothing();
    void locked_aSecondStartWaits();
    void locked_pinningWaits();
    void lockedAtTheStart_nothingOpens();
    void unlocking_bringsBackWhatWasPinned();
    void unlocking_bringsBackWhatADialogHeldOpen();
    void unlocking_leavesTheRestClosed();
    void locked_noPlayerIsAsked();
    void locked_noCalendarIsAsked();

private:
    void setLocked(bool isLocked) { m_quib->shell.sessionLock.setLocked(isLocked); }
    bool isExpanded() { return m_quib->delegate.model().isExpanded(); }
    void touchTheNotch()
    {
        m_quib->shell.pointer.now.position = m_quib->delegate.life().collapsedRect().center();
        m_quib->delegate.life().checkHover();
    }

    std::unique_ptr<DelegateForTest> m_quib;
};

void AppDelegateLockTest::locking_collapsesAtOnce()
{
    m_quib->launched().life().expand(false);

    setLocked(true);

    QVERIFY(!isExpanded());
    QVERIFY(m_quib->shell.asked.contains(u"give back keyboard 0"_s));
}

void AppDelegateLockTest::locked_thePointerOpensNothing()
{
    m_quib->launched();
    setLocked(true);

    touchTheNotch();
    QVERIFY(!isExpanded());

    setLocked(false);
    touchTheNotch();
    QVERIFY(isExpanded());
}

void AppDelegateLockTest::locked_aDroppedFileOpensNothing()
{
    m_quib->launched();
    setLocked(true);

    m_quib->delegate.life().expand(true);

    QVERIFY(!isExpanded());
    QVERIFY(m_quib->delegate.model().tab() != Tab::Shelf);
}

void AppDelegateLockTest::locked_aSecondStartWaits()
{
    m_quib->launched();
    setLocked(true);

    Q_EMIT m_quib->shell.instance.activated();
    QVERIFY(!isExpanded());
    QVERIFY(!m_quib->shell.asked.contains(u"take keyboard"_s));

    setLocked(false);
    QVERIFY(isExpanded());
}

void AppDelegateLockTest::locked_pinningWaits()
{
    m_quib->launched();
    setLocked(true);

    m_quib->delegate.commands().togglePin();
    QVERIFY(!isExpanded());
    QVERIFY(m_quib->delegate.model().isPinned());

    setLocked(false);
    QVERIFY(isExpanded());
}

void AppDelegateLockTest::lockedAtTheStart_nothingOpens()
{
    setLocked(true);
    m_quib->launched();

    touchTheNotch();

    QVERIFY(!isExpanded());
}

void AppDelegateLockTest::unlocking_bringsBackWhatWasPinned()
{
    m_quib->launched().life().openQuib();
    m_quib->delegate.model().setTab(Tab::Notes);
    setLocked(true);
    QVERIFY(!isExpanded());

    setLocked(false);

    QVERIFY(isExpanded());
    QVERIFY(m_quib->delegate.model().isPinned());
    QCOMPARE(m_quib->delegate.model().tab(), Tab::Notes);
}

void AppDelegateLockTest::unlocking_bringsBackWhatADialogHeldOpen()
{
    auto& delegate = m_quib->launched();
    delegate.life().expand(false);
    delegate.commands().pick(true, {}, [](const QUrl&) {});
    setLocked(true);
    QVERIFY(!isExpanded());

    setLocked(false);

    QVERIFY(isExpanded());
}

void AppDelegateLockTest::unlocking_leavesTheRestClosed()
{
    m_quib->launched().life().expand(false);
    setLocked(true);

    setLocked(false);

    QVERIFY(!isExpanded());
}

void AppDelegateLockTest::locked_noPlayerIsAsked()
{
    auto& player = m_quib->shell.player;
    player.running = {Player::Music};
    m_quib->launched().life().expand(false);
    player.answer(u"A||B||playing"_s);
    m_quib->delegate.viewContext().media.command(u"playpause"_s);
    setLocked(true);
    player.asked.clear();

    m_quib->hands.advance(1h);
    touchTheNotch();

    QCOMPARE(player.asked, QStringList());
}

void AppDelegateLockTest::locked_noCalendarIsAsked()
{
    m_quib->launched();
    auto& calendar = m_quib->shell.calendar;
    calendar.authorizations.front()(CalendarAuthorization::FullAccess);
    calendar.readings.back().answer({});
    setLocked(true);
    const auto readings = calendar.readings.size();

    Q_EMIT calendar.changed();
    QCOMPARE(calendar.readings.size(), readings);

    setLocked(false);
    QCOMPARE(calendar.readings.size(), readings + 1);
}

QTEST_MAIN(AppDelegateLockTest)
#include "tst_appdelegatelock.moc"
