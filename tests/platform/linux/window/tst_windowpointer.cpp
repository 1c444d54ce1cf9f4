#include "platform/linux/window/pointerinwindow.h"

#include <QSignalSpy>
#include <QTest>
#include <QTouchEvent>

using namespace quib;

/// The pointer of a window that is told of it, without drags.
class WindowPointerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_desk = std::make_unique<PointerInWindow>(); }
    void cleanup() { m_desk.reset(); }

    void untold_isFarAway();
    void enter_isWhereItWasTold();
    void enter_windowLiesElsewhereThanItKnows_isThere();
    void leave_isFarAway();
    void windowHides_isFarAway();
    void windowMoves_staysWhereItWas();
    void press_isHeldUntilTheRelease();
    void pressedAndMovedBeyond_isThereAndHeld();
    void doubtedEnter_countsOnceThePointerMoves();
    void doubtedLeaving_countsAMomentLater();
    void finger_isHeldUntilLifted_andStaysThere();
    void fingerCancelled_isFarAway();
    void everyChange_isTold();
    void windowGone_isFarAway();

private:
    std::unique_ptr<PointerInWindow> m_desk;
};

void WindowPointerTest::untold_isFarAway()
{
    QVERIFY(m_desk->isFarAway());
    QVERIFY(!m_desk->isHeld());
}

void WindowPointerTest::enter_isWhereItWasTold()
{
    m_desk->enter();

    QVERIFY(m_desk->isAt(PointerInWindow::Place));
    QVERIFY(!m_desk->isHeld());
}

void WindowPointerTest::enter_windowLiesElsewhereThanItKnows_isThere()
{
    m_desk->pointer.setOrigin({1000, 20});

    m_desk->enter();

    QCOMPARE(m_desk->pointer.state().position, QPointF(1000, 20) + PointerInWindow::Place);
}

void WindowPointerTest::leave_isFarAway()
{
    m_desk->enter();

    m_desk->leave();

    QVERIFY(m_desk->isFarAway());
}

void WindowPointerTest::windowHides_isFarAway()
{
    m_desk->enter();
    QHideEvent event;

    QCoreApplication::sendEvent(m_desk->window.get(), &event);

    QVERIFY(m_desk->isFarAway());
}

void WindowPointerTest::windowMoves_staysWhereItWas()
{
    m_desk->enter();

    m_desk->window->setGeometry(690, 0, 220, 30);

    QVERIFY(m_desk->isAt(PointerInWindow::Place));
}

void WindowPointerTest::press_isHeldUntilTheRelease()
{
    m_desk->enter();

    m_desk->mouse(QEvent::MouseButtonPress, PointerInWindow::Place, Qt::LeftButton);
    QVERIFY(m_desk->isHeld());
    m_desk->mouse(QEvent::MouseButtonRelease, PointerInWindow::Place, Qt::NoButton);

    QVERIFY(!m_desk->isHeld());
    QVERIFY(m_desk->isAt(PointerInWindow::Place));
}

void WindowPointerTest::pressedAndMovedBeyond_isThereAndHeld()
{
    m_desk->enter();
    m_desk->mouse(QEvent::MouseButtonPress, PointerInWindow::Place, Qt::LeftButton);

    m_desk->mouse(QEvent::MouseMove, PointerInWindow::Beyond, Qt::LeftButton);
    QVERIFY(m_desk->isAt(PointerInWindow::Beyond));
    QVERIFY(m_desk->isHeld());
    m_desk->mouse(QEvent::MouseButtonRelease, PointerInWindow::Beyond, Qt::NoButton);

    QVERIFY(m_desk->isAt(PointerInWindow::Beyond));
    QVERIFY(!m_desk->isHeld());
}

/// A server may tell of a pointer that went elsewhere without its knowing.
void WindowPointerTest::doubtedEnter_countsOnceThePointerMoves()
{
    m_desk->pointer.doubtNextEnter();
    m_desk->enter();
    QVERIFY(m_desk->isFarAway());

    m_desk->mouse(QEvent::MouseMove, PointerInWindow::Place, {});
    QVERIFY(m_desk->isAt(PointerInWindow::Place));

    m_desk->leave();
    m_desk->enter();
    QVERIFY(m_desk->isAt(PointerInWindow::Place));
}

void WindowPointerTest::doubtedLeaving_countsAMomentLater()
{
    m_desk->enter();
    m_desk->pointer.doubtLeaving();
    QSignalSpy changes(&m_desk->pointer, &PointerSource::changed);

    m_desk->leave();
    QVERIFY(m_desk->isAt(PointerInWindow::Place));

    QVERIFY(changes.wait());
    QVERIFY(m_desk->isFarAway());
}

void WindowPointerTest::finger_isHeldUntilLifted_andStaysThere()
{
    const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
    m_desk->window->show();

    QTest::touchEvent(m_desk->window.get(), screen.get())
        .press(0, PointerInWindow::Place.toPoint());
    QVERIFY(m_desk->isAt(PointerInWindow::Place));
    QVERIFY(m_desk->isHeld());
    QTest::touchEvent(m_desk->window.get(), screen.get())
        .release(0, PointerInWindow::Place.toPoint());

    QVERIFY(m_desk->isAt(PointerInWindow::Place));
    QVERIFY(!m_desk->isHeld());
}

void WindowPointerTest::fingerCancelled_isFarAway()
{
    const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
    m_desk->window->show();
    QTest::touchEvent(m_desk->window.get(), screen.get())
        .press(0, PointerInWindow::Place.toPoint());
    QTouchEvent cancel(QEvent::TouchCancel, screen.get());

    QCoreApplication::sendEvent(m_desk->window.get(), &cancel);

    QVERIFY(m_desk->isFarAway());
    QVERIFY(!m_desk->isHeld());
}

void WindowPointerTest::everyChange_isTold()
{
    const QSignalSpy changes(&m_desk->pointer, &PointerSource::changed);

    m_desk->enter();
    m_desk->mouse(QEvent::MouseMove, PointerInWindow::Place, Qt::NoButton);
    m_desk->leave();
    m_desk->dragOver();
    m_desk->dragLeaves();

    QCOMPARE(changes.size(), 5);
}

void WindowPointerTest::windowGone_isFarAway()
{
    m_desk->enter();

    m_desk->window.reset();

    QVERIFY(m_desk->isFarAway());
}

QTEST_MAIN(WindowPointerTest)
#include "tst_windowpointer.moc"
