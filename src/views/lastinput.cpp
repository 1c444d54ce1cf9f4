#include "views/lastinput.h"

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
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::TouchBegin) {
        take(true);
    } else if (event->type() == QEvent::KeyPress) {
        take(false);
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
