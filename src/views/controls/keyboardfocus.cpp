#include "views/controls/keyboardfocus.h"

#include <QFocusEvent>

namespace quib {

namespace {

bool isOfTheKeyboard(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason
        || reason == Qt::ShortcutFocusReason;
}

bool isAReturn(Qt::FocusReason reason)
{
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
}

} // namespace

void KeyboardFocus::setItem(QQuickItem* item)
{
    if (m_item == item) {
        return;
    }
    if (m_item) {
        m_item->removeEventFilter(this);
    }
    m_item = item;
    if (m_item) {
        m_item->installEventFilter(this);
    }
    m_cameByKey = false;
    show(false);
    Q_EMIT itemChanged();
}

bool KeyboardFocus::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn) {
        comeBy(static_cast<QFocusEvent*>(event)->reason());
    } else if (event->type() == QEvent::FocusOut) {
        m_isUnderPopup = static_cast<QFocusEvent*>(event)->reason() == Qt::PopupFocusReason;
        show(false);
    } else if (event->type() == QEvent::MouseButtonPress) {
        take(Qt::MouseFocusReason);
    }
    return QObject::eventFilter(watched, event);
}

/// Some versions of Qt give no reason when a popup closes.
void KeyboardFocus::comeBy(Qt::FocusReason reason)
{
    const bool isFromPopup = m_isUnderPopup && reason == Qt::OtherFocusReason;
    take(isFromPopup ? Qt::PopupFocusReason : reason);
}

void KeyboardFocus::take(Qt::FocusReason reason)
{
    m_cameByKey = isAReturn(reason) ? m_cameByKey : isOfTheKeyboard(reason);
    show(m_cameByKey);
}

void KeyboardFocus::show(bool isShown)
{
    if (m_isShown != isShown) {
        m_isShown = isShown;
        Q_EMIT isShownChanged();
    }
}

} // namespace quib
