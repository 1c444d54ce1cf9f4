#include "app/composedonce.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QWindow>

#include <utility>

namespace quib {

ComposedOnce::ComposedOnce(QWindow& window)
{
    window.installEventFilter(this);
    connect(qGuiApp, &QGuiApplication::focusObjectChanged, this, &ComposedOnce::follow);
}

bool ComposedOnce::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::InputMethod: return isRepeat(static_cast<const QInputMethodEvent&>(*event));
    case QEvent::KeyPress: m_finished.clear(); break; // What comes now is new.
    case QEvent::MouseButtonPress:
    case QEvent::FocusAboutToChange: finish(); break;
    default: break; // NOLINT: Qt's events are not ours to list
    }
    return QObject::eventFilter(watched, event);
}

void ComposedOnce::follow(QObject* focus)
{
    if (m_focus) {
        m_focus->removeEventFilter(this);
    }
    m_focus = focus;
    m_composed.clear();
    if (m_focus) {
        m_focus->installEventFilter(this);
    }
}

void ComposedOnce::finish()
{
    if (!m_composed.isEmpty()) {
        auto composed = std::exchange(m_composed, {});
        QGuiApplication::inputMethod()->commit();
        m_finished = std::move(composed);
    }
}

bool ComposedOnce::isRepeat(const QInputMethodEvent& event)
{
    m_composed = event.preeditString();
    const bool isIt = !m_finished.isEmpty() && event.commitString() == m_finished;
    if (!event.commitString().isEmpty() || !m_composed.isEmpty()) {
        m_finished.clear();
    }
    return isIt;
}

} // namespace quib
