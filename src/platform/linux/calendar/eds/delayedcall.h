#pragma once

#include <glib.h>

#include <chrono>
#include <functional>
#include <memory>

namespace quib {

/// A call that is made later by the loop of GLib's on this thread. Belongs to that thread.
class DelayedCall {
public:
    /// Instead of the one that was due, if there was one.
    void start(std::chrono::milliseconds delay, std::function<void()> call);
    void stop() { m_source.reset(); }
    bool isDue() const { return m_source != nullptr; }

private:
    struct Ended {
        void operator()(GSource* source) const
        {
            g_source_destroy(source);
            g_source_unref(source);
        }
    };

    static gboolean make(gpointer delayedCall);

    std::function<void()> m_call;
    std::unique_ptr<GSource, Ended> m_source; ///< Null when none is due.
};

} // namespace quib
