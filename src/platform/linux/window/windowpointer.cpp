#include "platform/linux/window/windowpointer.h"

#include <QDrag>
#include <QDropEvent>
#include <QEnterEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QTouchEvent>

#include <utility>

using namespace std::chrono_literals;

namespace quib {

namespace {

constexpr QPointF FarAway(-1e6, -1e6);
constexpr auto AfterDrag = 250ms; // Compositors take up to a fifth of it.
constexpr auto AfterGrowing = 250ms; // mutter takes some 100 ms.

} // namespace

WindowPointer::WindowPointer()
{
    m_afterDrag.setInterval(AfterDrag);
    m_leavingDoubted.setInterval(AfterGrowing);
    for (auto* timer : {&m_afterDrag, &m_leavingDoubted}) {
        timer->setSingleShot(true);
        connect(timer, &QTimer::timeout, this, &PointerSource::changed);
    }
}

void WindowPointer::watch(QWindow& window)
{
    m_window = &window;
    window.installEventFilter(this);
}

void WindowPointer::setOrigin(QPointF origin)
{
    m_origin = origin;
}

void WindowPointer::doubtNextEnter()
{
    m_isNextEnterDoubted = true;
}

void WindowPointer::doubtLeaving()
{
    if (m_isInside || m_isDraggedOver) {
        m_leavingDoubted.start();
    }
}

PointerState WindowPointer::state() const
{
    const bool isHere
        = m_isInside || m_isDraggedOver || m_afterDrag.isActive() || m_leavingDoubted.isActive();
    return {.position = isHere && m_window ? m_place : FarAway,
            .leftHeld = m_isLeftHeld || m_isDraggedOver || isOurDrag()};
}

bool WindowPointer::eventFilter(QObject* object, QEvent* event)
{
    follow(*event);
    return PointerSource::eventFilter(object, event);
}

void WindowPointer::follow(const QEvent& event)
{
    switch (event.type()) {
    case QEvent::Enter:
        if (!std::exchange(m_isNextEnterDoubted, false)) {
            setLeftHeld(QGuiApplication::mouseButtons().testFlag(Qt::LeftButton));
            comeTo(placeOf(static_cast<const QEnterEvent&>(event)));
        }
        return;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove: {
        const auto& mouse = static_cast<const QMouseEvent&>(event);
        setLeftHeld(mouse.buttons().testFlag(Qt::LeftButton));
        comeTo(placeOf(mouse));
        return;
    }
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd: followTouch(static_cast<const QTouchEvent&>(event)); return;
    case QEvent::Hide:
        m_isDraggedOver = false;
        m_isDragOurs = false;
        leave();
        return;
    case QEvent::Leave:
    case QEvent::TouchCancel: leave(); return;
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::DragLeave:
    case QEvent::Drop:
    case QEvent::ChildRemoved: followDrag(event); return;
    default: return; // NOLINT: Qt's events are not ours to list
    }
}

/// A finger is where it was lifted, as a mouse would be.
void WindowPointer::followTouch(const QTouchEvent& event)
{
    setLeftHeld(event.type() != QEvent::TouchEnd);
    comeTo(origin() + event.points().constFirst().position());
}

void WindowPointer::followDrag(const QEvent& event)
{
    switch (event.type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
        m_isDraggedOver = true;
        m_isDragOurs = isOurDrag();
        m_isInside = false; // Where the pointer is once the drag ends, the window is told anew.
        m_isLeftHeld = false;
        m_place = origin() + static_cast<const QDropEvent&>(event).position();
        break;
    case QEvent::DragLeave: m_isDraggedOver = false; break;
    case QEvent::Drop: endDrag(); break;
    case QEvent::ChildRemoved:
        if (m_isDragOurs && !isOurDrag()) {
            m_isDragOurs = false;
            endDrag();
        }
        break; // One that was never over the window is over too.
    default: Q_UNREACHABLE();
    }
    Q_EMIT changed();
}

void WindowPointer::endDrag()
{
    if (std::exchange(m_isDraggedOver, false)) {
        m_afterDrag.start();
    }
}

/// On X11 a drag that nobody answers lives on for minutes after the button was let go.
void WindowPointer::setLeftHeld(bool isHeld)
{
    m_isLeftHeld = isHeld;
    if (!isHeld) {
        m_endedDrag = latestDrag();
    }
}

void WindowPointer::comeTo(QPointF place)
{
    m_isInside = true;
    m_isNextEnterDoubted = false;
    m_place = place;
    m_afterDrag.stop();
    Q_EMIT changed();
}

void WindowPointer::leave()
{
    m_isInside = false;
    m_isLeftHeld = false;
    Q_EMIT changed();
}

/// Not where the window lies: that may have changed since.
QPointF WindowPointer::placeOf(const QSinglePointEvent& event) const
{
    return m_origin ? *m_origin + event.position() : event.globalPosition();
}

QPointF WindowPointer::origin() const
{
    return m_origin.value_or(m_window ? m_window->position() : QPoint());
}

/// Qt keeps it as a child of the window that it began in.
QDrag* WindowPointer::latestDrag() const
{
    const auto drags
        = m_window ? m_window->findChildren<QDrag*>(Qt::FindDirectChildrenOnly) : QList<QDrag*>();
    return drags.isEmpty() ? nullptr : drags.last();
}

bool WindowPointer::isOurDrag() const
{
    const auto* drag = latestDrag();
    return drag != nullptr && drag != m_endedDrag;
}

} // namespace quib
