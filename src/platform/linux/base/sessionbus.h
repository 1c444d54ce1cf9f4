#pragma once

#include "platform/linux/base/bus.h"

namespace quib {

struct SessionBusAtStart {
    bool isThere = false; ///< It has said a word within a quarter of a second.
    bool isPrompt = false; ///< So soon that it is not busy.
};

/// Needs no application object.
SessionBusAtStart lookAtSessionBus();

/// Hides the session bus from this process, as long as what it gives is there.
std::unique_ptr<QObject> hideSessionBus();

/// The user's session bus.
class SessionBus final : public Bus {
    Q_OBJECT

public:
    enum class State { Unknown, Prompt };

    /// The one that the environment names. While it does not answer, Qt and GIO are told that there
    /// is none: they would wait for it without end, or start a stray one. One that was prompt a
    /// moment ago is shown to them until somebody says that it is to be reached.
    explicit SessionBus(State state = State::Unknown);
    using Bus::Bus;

    void reach() override;

private:
    bool m_isShown = false; ///< To others, though it is not reached.
};

} // namespace quib
