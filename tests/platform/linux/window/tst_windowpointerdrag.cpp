#include "platform/linux/window/pointerinwindow.h"

#include <QDrag>
#include <QSignalSpy>
#include <QTest>

using namespace quib;

/// What is carried across the window and out of it.
class WindowPointerDragTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_desk = std::make_unique<PointerInWindow>(); }
    void cleanup() { m_desk.reset(); }

    void foreignDrag_isHeldWhereItIs();
    void foreignDragLeaves_isFarAway();
    void windowHides_underADrag_isFarAway();
    void drop_isThereForAMoment();
    void drop_enterComesLate_isWhereItEntered();
    void ourDrag_isHeldWhereverItIs();
    void ourDragEnds_beyond_isFarAway();
    void ourDragEnds_withoutHavingBeenOverTheWindow_isTold();
    void ourDragEnds_overTheWindow_isThereForAMoment();
    void ourDragLivesOn_buttonIsUp_isNotHeld();
    void ourDragAfterOneThatLivesOn_isHeld();
    void anotherChildGoes_foreignDragStays();

private:
    std::unique_ptr<PointerInWindow> m_desk;
};

void WindowPointerDragTest::foreignDrag_isHeldWhereItIs()
{
    m_desk->dragOver();

    QVERIFY(m_desk->isAt(PointerInWindow::Place));
    QVERIFY(m_desk->isHeld());
}

void WindowPointerDragTest::foreignDragLeaves_isFarAway()
{
    m_desk->dragOver();

    m_desk->dragLeaves();

    QVERIFY(m_desk->isFarAway());
    QVERIFY(!m_desk->isHeld());
}

/// The output may go in mid-drag, and with it the window's surface.
void WindowPointerDragTest::windowHides_underADrag_isFarAway()
{
    m_desk->dragOver();

    QEvent hide(QEvent::Hide);
    QCoreApplication::sendEvent(m_desk->window.get(), &hide);

    QVERIFY(m_desk->isFarAway());
    QVERIFY(!m_desk->isHeld());
}

void WindowPointerDragTest::drop_isThereForAMoment()
{
    m_desk->dragOver();
    QSignalSpy changes(&m_desk->pointer, &PointerSource::changed);

    m_desk->drop();
    QVERIFY(m_desk->isAt(PointerInWindow::Place));
    QVERIFY(!m_desk->isHeld());
    changes.clear();

    QVERIFY(changes.wait());
    QVERIFY(m_desk->isFarAway());
}

void WindowPointerDragTest::drop_enterComesLate_isWhereItEntered()
{
    m_desk->dragOver();
    m_desk->drop();
    m_desk->dragLeaves(); // Some desktops tell of that too.

    m_desk->enter(PointerInWindow::Place + QPointF(1, 1));

    QVERIFY(m_desk->isAt(PointerInWindow::Place + QPointF(1, 1)));
    QSignalSpy changes(&m_desk->pointer, &PointerSource::changed);
    QVERIFY(!changes.wait(400));
    QVERIFY(m_desk->isAt(PointerInWindow::Place + QPointF(1, 1)));
}

void WindowPointerDragTest::ourDrag_isHeldWhereverItIs()
{
    m_desk->enter();
    m_desk->mouse(QEvent::MouseButtonPress, PointerInWindow::Place, Qt::LeftButton);
    const QDrag drag(m_desk->window.get());

    m_desk->dragOver();
    m_desk->leave(); // Sent by desktops that tell of the drag instead.
    QVERIFY(m_desk->isAt(PointerInWindow::Place));
    QVERIFY(m_desk->isHeld());
    m_desk->dragLeaves();

    QVERIFY(m_desk->isFarAway());
    QVERIFY(m_desk->isHeld());
}

void WindowPointerDragTest::ourDragEnds_beyond_isFarAway()
{
    m_desk->enter();
    m_desk->mouse(QEvent::MouseButtonPress, PointerInWindow::Place, Qt::LeftButton);
    auto drag = std::make_unique<QDrag>(m_desk->window.get());
    m_desk->dragOver();
    m_desk->dragLeaves();
    const QSignalSpy changes(&m_desk->pointer, &PointerSource::changed);

    drag.reset();

    QCOMPARE(changes.size(), 1);
    QVERIFY(m_desk->isFarAway());
    QVERIFY(!m_desk->isHeld());
}

void WindowPointerDragTest::ourDragEnds_withoutHavingBeenOverTheWindow_isTold()
{
    m_desk->enter();
    m_desk->mouse(QEvent::MouseButtonPress, PointerInWindow::Place, Qt::LeftButton);
    auto drag = std::make_unique<QDrag>(m_desk->window.get());
    m_desk->leave();
    QVERIFY(m_desk->isHeld());
    const QSignalSpy changes(&m_desk->pointer, &PointerSource::changed);

    drag.reset();

    QCOMPARE(changes.size(), 1);
    QVERIFY(!m_desk->isHeld());
}

void WindowPointerDragTest::ourDragEnds_overTheWindow_isThereForAMoment()
{
    auto drag = std::make_unique<QDrag>(m_desk->window.get());
    m_desk->dragOver();

    drag.reset();

    QVERIFY(m_desk->isAt(PointerInWindow::Place));
    QVERIFY(!m_desk->isHeld());
    QTRY_VERIFY(m_desk->isFarAway());
}

void WindowPointerDragTest::ourDragLivesOn_buttonIsUp_isNotHeld()
{
    const QDrag drag(m_desk->window.get());
    m_desk->dragOver();
    m_desk->dragLeaves();

    m_desk->mouse(QEvent::MouseButtonRelease, PointerInWindow::Beyond, Qt::NoButton);

    QVERIFY(!m_desk->isHeld());
}

void WindowPointerDragTest::ourDragAfterOneThatLivesOn_isHeld()
{
    const QDrag old(m_desk->window.get());
    m_desk->mouse(QEvent::MouseButtonRelease, PointerInWindow::Beyond, Qt::NoButton);

    const QDrag drag(m_desk->window.get());
    m_desk->dragOver();
    m_desk->dragLeaves();

    QVERIFY(m_desk->isHeld());
}

void WindowPointerDragTest::anotherChildGoes_foreignDragStays()
{
    auto child = std::make_unique<QObject>(m_desk->window.get());
    m_desk->dragOver();

    child.reset();

    QVERIFY(m_desk->isAt(PointerInWindow::Place));
    QVERIFY(m_desk->isHeld());
}

QTEST_MAIN(WindowPointerDragTest)
#include "tst_windowpointerdrag.moc"
