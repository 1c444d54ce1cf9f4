#include "platform/linux/windowpointer.h"

#include <QDrag>
#include <QDropEvent>
#include <QEnterEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QTouchEvent>

using namespace quib;

namespace {

constexpr QPoint Corner(420, 0);
constexpr QPointF Place(100, 5); ///< In the window.
constexpr QPointF Beyond(100, 600); ///< In its coordinates too.

} // namespace

/// Events as Qt sends them to the window.
class WindowPointerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void untold_isFarAway();
    void enter_isWhereItWasTold();
    void enter_windowLiesElsewhereThanItKnows_isThere();
    void leave_isFarAway();
    void windowHides_isFarAway();
    void windowMoves_staysWhereItWas();
    void press_isHeldUntilTheRelease();
    void pressedAndMovedBeyond_isThereAndHeld();
    void foreignDrag_isHeldWhereItIs();
    void foreignDragLeaves_isFarAway();
    void drop_isThereForAMoment();
    void drop_enterComesLate_isWhereItEntered();
    void ourDrag_isHeldWhereverItIs();
    void doubtedEnter_countsOnceThePointerMoves();
    void doubtedLeaving_countsAMomentLater();
    void ourDragEnds_beyond_isFarAway();
    void ourDragEnds_withoutHavingBeenOverTheWindow_isTold();
    void ourDragEnds_overTheWindow_isThereForAMoment();
    void ourDragLivesOn_buttonIsUp_isNotHeld();
    void ourDragAfterOneThatLivesOn_isHeld();
    void anotherChildGoes_foreignDragStays();
    void finger_isHeldUntilLifted_andStaysThere();
    void fingerCancelled_isFarAway();
    void everyChange_isTold();
    void windowGone_isFarAway();

private:
    void enter(QPointF place = Place);
    void leave();
    void mouse(QEvent::Type type, QPointF place, Qt::MouseButtons held);
    void dragOver(QPointF place = Place);
    void dragLeaves();
    void drop();
    bool isAt(QPointF inWindow) const;
    bool isFarAway() const;
    bool isHeld() const { return m_pointer->state().leftHeld; }

    std::unique_ptr<QWindow> m_window;
    std::unique_ptr<WindowPointer> m_pointer;
    QMimeData m_data;
};

void WindowPointerTest::init()
{
    m_window = std::make_unique<QWindow>();
    m_window->setFlags(Qt::FramelessWindowHint);
    m_window->setGeometry({Corner, QSize(760, 330)});
    m_pointer = std::make_unique<WindowPointer>();
    m_pointer->watch(*m_window);
}

void WindowPointerTest::cleanup()
{
    m_pointer.reset();
    m_window.reset();
}

void WindowPointerTest::enter(QPointF place)
{
    QEnterEvent event(place, place, Corner + place);
    QCoreApplication::sendEvent(m_window.get(), &event);
}

void WindowPointerTest::leave()
{
    QEvent event(QEvent::Leave);
    QCoreApplication::sendEvent(m_window.get(), &event);
}

void WindowPointerTest::mouse(QEvent::Type type, QPointF place, Qt::MouseButtons held)
{
    const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, place, place, Corner + place, button, held, {});
    QCoreApplication::sendEvent(m_window.get(), &event);
}

void WindowPointerTest::dragOver(QPointF place)
{
    QDragEnterEvent event(place.toPoint(), Qt::CopyAction, &m_data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(m_window.get(), &event);
}

void WindowPointerTest::dragLeaves()
{
    QDragLeaveEvent event;
    QCoreApplication::sendEvent(m_window.get(), &event);
}

void WindowPointerTest::drop()
{
    QDropEvent event(Place, Qt::CopyAction, &m_data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(m_window.get(), &event);
}

bool WindowPointerTest::isAt(QPointF inWindow) const
{
    return m_pointer->state().position == Corner + inWindow;
}

bool WindowPointerTest::isFarAway() const
{
    return !QRectF(-10000, -10000, 20000, 20000).contains(m_pointer->state().position);
}

void WindowPointerTest::untold_isFarAway()
{
    QVERIFY(isFarAway());
    QVERIFY(!isHeld());
}

void WindowPointerTest::enter_isWhereItWasTold()
{
    enter();

    QVERIFY(isAt(Place));
    QVERIFY(!isHeld());
}

void WindowPointerTest::enter_windowLiesElsewhereThanItKnows_isThere()
{
    m_pointer->setOrigin({1000, 20});

    enter();

    QCOMPARE(m_pointer->state().position, QPointF(1000, 20) + Place);
}

void WindowPointerTest::leave_isFarAway()
{
    enter();

    leave();

    QVERIFY(isFarAway());
}

void WindowPointerTest::windowHides_isFarAway()
{
    enter();
    QHideEvent event;

    QCoreApplication::sendEvent(m_window.get(), &event);

    QVERIFY(isFarAway());
}

void WindowPointerTest::windowMoves_staysWhereItWas()
{
    enter();

    m_window->setGeometry(690, 0, 220, 30);

    QVERIFY(isAt(Place));
}

void WindowPointerTest::press_isHeldUntilTheRelease()
{
    enter();

    mouse(QEvent::MouseButtonPress, Place, Qt::LeftButton);
    QVERIFY(isHeld());
    mouse(QEvent::MouseButtonRelease, Place, Qt::NoButton);

    QVERIFY(!isHeld());
    QVERIFY(isAt(Place));
}

void WindowPointerTest::pressedAndMovedBeyond_isThereAndHeld()
{
    enter();
    mouse(QEvent::MouseButtonPress, Place, Qt::LeftButton);

    mouse(QEvent::MouseMove, Beyond, Qt::LeftButton);
    QVERIFY(isAt(Beyond));
    QVERIFY(isHeld());
    mouse(QEvent::MouseButtonRelease, Beyond, Qt::NoButton);

    QVERIFY(isAt(Beyond));
    QVERIFY(!isHeld());
}

void WindowPointerTest::foreignDrag_isHeldWhereItIs()
{
    dragOver();

    QVERIFY(isAt(Place));
    QVERIFY(isHeld());
}

void WindowPointerTest::foreignDragLeaves_isFarAway()
{
    dragOver();

    dragLeaves();

    QVERIFY(isFarAway());
    QVERIFY(!isHeld());
}

void WindowPointerTest::drop_isThereForAMoment()
{
    dragOver();
    QSignalSpy changes(m_pointer.get(), &PointerSource::changed);

    drop();
    QVERIFY(isAt(Place));
    QVERIFY(!isHeld());
    changes.clear();

    QVERIFY(changes.wait());
    QVERIFY(isFarAway());
}

void WindowPointerTest::drop_enterComesLate_isWhereItEntered()
{
    dragOver();
    drop();
    dragLeaves(); // Some desktops tell of that too.

    enter(Place + QPointF(1, 1));

    QVERIFY(isAt(Place + QPointF(1, 1)));
    QSignalSpy changes(m_pointer.get(), &PointerSource::changed);
    QVERIFY(!changes.wait(400));
    QVERIFY(isAt(Place + QPointF(1, 1)));
}

void WindowPointerTest::ourDrag_isHeldWhereverItIs()
{
    enter();
    mouse(QEvent::MouseButtonPress, Place, Qt::LeftButton);
    const QDrag drag(m_window.get());

    dragOver();
    leave(); // Sent by desktops that tell of the drag instead.
    QVERIFY(isAt(Place));
    QVERIFY(isHeld());
    dragLeaves();

    QVERIFY(isFarAway());
    QVERIFY(isHeld());
}

void WindowPointerTest::ourDragEnds_beyond_isFarAway()
{
    enter();
    mouse(QEvent::MouseButtonPress, Place, Qt::LeftButton);
    auto drag = std::make_unique<QDrag>(m_window.get());
    dragOver();
    dragLeaves();
    const QSignalSpy changes(m_pointer.get(), &PointerSource::changed);

    drag.reset();

    QCOMPARE(changes.size(), 1);
    QVERIFY(isFarAway());
    QVERIFY(!isHeld());
}

void WindowPointerTest::ourDragEnds_withoutHavingBeenOverTheWindow_isTold()
{
    enter();
    mouse(QEvent::MouseButtonPress, Place, Qt::LeftButton);
    auto drag = std::make_unique<QDrag>(m_window.get());
    leave();
    QVERIFY(isHeld());
    const QSignalSpy changes(m_pointer.get(), &PointerSource::changed);

    drag.reset();

    QCOMPARE(changes.size(), 1);
    QVERIFY(!isHeld());
}

/// A server may tell of a pointer that went elsewhere without its knowing.
void WindowPointerTest::doubtedEnter_countsOnceThePointerMoves()
{
    m_pointer->doubtNextEnter();
    enter();
    QVERIFY(isFarAway());

    mouse(QEvent::MouseMove, Place, {});
    QVERIFY(isAt(Place));

    leave();
    enter();
    QVERIFY(isAt(Place));
}

void WindowPointerTest::doubtedLeaving_countsAMomentLater()
{
    enter();
    m_pointer->doubtLeaving();
    QSignalSpy changes(m_pointer.get(), &PointerSource::changed);

    leave();
    QVERIFY(isAt(Place));

    QVERIFY(changes.wait());
    QVERIFY(isFarAway());
}

void WindowPointerTest::ourDragEnds_overTheWindow_isThereForAMoment()
{
    auto drag = std::make_unique<QDrag>(m_window.get());
    dragOver();

    drag.reset();

    QVERIFY(isAt(Place));
    QVERIFY(!isHeld());
    QTRY_VERIFY(isFarAway());
}

void WindowPointerTest::ourDragLivesOn_buttonIsUp_isNotHeld()
{
    const QDrag drag(m_window.get());
    dragOver();
    dragLeaves();

    mouse(QEvent::MouseButtonRelease, Beyond, Qt::NoButton);

    QVERIFY(!isHeld());
}

void WindowPointerTest::ourDragAfterOneThatLivesOn_isHeld()
{
    const QDrag old(m_window.get());
    mouse(QEvent::MouseButtonRelease, Beyond, Qt::NoButton);

    const QDrag drag(m_window.get());
    dragOver();
    dragLeaves();

    QVERIFY(isHeld());
}

void WindowPointerTest::anotherChildGoes_foreignDragStays()
{
    auto child = std::make_unique<QObject>(m_window.get());
    dragOver();

    child.reset();

    QVERIFY(isAt(Place));
    QVERIFY(isHeld());
}

void WindowPointerTest::finger_isHeldUntilLifted_andStaysThere()
{
    const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
    m_window->show();

    QTest::touchEvent(m_window.get(), screen.get()).press(0, Place.toPoint());
    QVERIFY(isAt(Place));
    QVERIFY(isHeld());
    QTest::touchEvent(m_window.get(), screen.get()).release(0, Place.toPoint());

    QVERIFY(isAt(Place));
    QVERIFY(!isHeld());
}

void WindowPointerTest::fingerCancelled_isFarAway()
{
    const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
    m_window->show();
    QTest::touchEvent(m_window.get(), screen.get()).press(0, Place.toPoint());
    QTouchEvent cancel(QEvent::TouchCancel, screen.get());

    QCoreApplication::sendEvent(m_window.get(), &cancel);

    QVERIFY(isFarAway());
    QVERIFY(!isHeld());
}

void WindowPointerTest::everyChange_isTold()
{
    const QSignalSpy changes(m_pointer.get(), &PointerSource::changed);

    enter();
    mouse(QEvent::MouseMove, Place, Qt::NoButton);
    leave();
    dragOver();
    dragLeaves();

    QCOMPARE(changes.size(), 5);
}

void WindowPointerTest::windowGone_isFarAway()
{
    enter();

    m_window.reset();

    QVERIFY(isFarAway());
}

QTEST_MAIN(WindowPointerTest)
#include "tst_windowpointer.moc"
