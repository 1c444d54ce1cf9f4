#include "platform/linux/x11/keyboard/keyrepeat.h"

namespace quib {

namespace {

constexpr quint64 LongestMs = 1; ///< The server looks at its clock twice.

}

bool KeyRepeat::isRepeat(const QKeyEvent& event)
{
    if (event.type() == QEvent::KeyRelease) {
        m_key = event.nativeScanCode();
        m_released = event.timestamp();
        return event.isAutoRepeat();
    }
    const auto isSameMoment
        = m_key == event.nativeScanCode() && event.timestamp() - m_released <= LongestMs;
    return event.isAutoRepeat() || isSameMoment;
}

} // namespace quib
