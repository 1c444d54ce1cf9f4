#include "platform/linux/windowpointer.h"

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

} // namespace

WindowPointer::WindowPointer()
{
    m_afterDrag.setSingleShot(true);
    m_afterDrag.setInterval(AfterDrag);
    connect(&m_afterDrag, &QTimer::timeout, this, &PointerSource::changed);
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

PointerState WindowPointer::state() const
{
    const bool isHere = m_isInside || m_isDraggedOver || m_afterDrag.isActive();
    const auto isKnown = isHere && m_window;
    const auto place = isKnown ? m_origin.value_or(m_window->position()) + m_place : FarAway;
    return {.position = place, .leftHeld = m_isLeftHeld || m_isDraggedOver || isOurDrag()};
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
        m_isLeftHeld = QGuiApplication::mouseButtons().testFlag(Qt::LeftButton);
        comeTo(static_cast<const QEnterEvent&>(event).position());
        return;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove: {
        const auto& mouse = static_cast<const QMouseEvent&>(event);
        m_isLeftHeld = mouse.buttons().testFlag(Qt::LeftButton);
        comeTo(mouse.position());
        return;
    }
    case QEvent::Leave:
        m_isInside = false;
        m_isLeftHeld = false;
        break;
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd: followTouch(static_cast<const QTouchEvent&>(event)); return;
    case QEvent::DragEnter:
    case QEvent::DragMove:
        m_isDraggedOver = true;
        m_place = static_cast<const QDropEvent&>(event).position();
        break;
    case QEvent::DragLeave: m_isDraggedOver = false; break;
    case QEvent::Drop:
        m_isDraggedOver = false;
        m_afterDrag.start();
        break;
    case QEvent::ChildRemoved: endOurDrag(); break;
    default: return; // NOLINT: Qt's events are not ours to list
    }
    Q_EMIT changed();
}

/// A finger is where it was lifted, as a mouse would be.
void WindowPointer::followTouch(const QTouchEvent& event)
{
    m_isLeftHeld = event.type() != QEvent::TouchEnd;
    comeTo(event.points().constFirst().position());
}

void WindowPointer::comeTo(QPointF place)
{
    m_isInside = true;
    m_place = place;
    m_afterDrag.stop();
    Q_EMIT changed();
}

/// Qt keeps it as a child of the window that it began in.
void WindowPointer::endOurDrag()
{
    if (std::exchange(m_isDraggedOver, false)) {
        m_afterDrag.start();
    }
}

bool WindowPointer::isOurDrag() const
{
    return m_window && m_window->findChild<QDrag*>({}, Qt::FindDirectChildrenOnly) != nullptr;
}

} // namespace quib
