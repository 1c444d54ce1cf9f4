#include "views/controls/lastinput.h"

#include <QCoreApplication>
#include <QEvent>

namespace quib {

LastInput::LastInput(QObject* parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool LastInput::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin:
    case QEvent::Wheel: take(true); break;
    case QEvent::KeyPress: take(false); break;
    default: break; // NOLINT: Qt's events are not ours to list
    }
    return QObject::eventFilter(watched, event);
}

void LastInput::take(bool isPointer)
{
    if (m_isPointer != isPointer) {
        m_isPointer = isPointer;
        Q_EMIT isPointerChanged();
    }
}

} // namespace quib
