#pragma once

#include "platform/linux/base/gowned.h"
#include "platform/linux/calendar/eds/span.h"

#include <QList>

#include <libecal/libecal.h>

#include <functional>
#include <memory>
#include <optional>

namespace quib {

/// One of the user's calendars, watched over a span of time.
class CalendarClient {
public:
    /// Called on the loop of the thread that connected.
    struct Listener {
        std::function<void()> changed;
        std::function<void()> died; ///< What reads this calendar has crashed.
    };

    /// Null where the calendar can't be opened.
    static std::unique_ptr<CalendarClient> connect(ESource* source, const Span& span,
                                                   GCancellable* cancellable, Listener listener);

    ~CalendarClient();
    CalendarClient(const CalendarClient&) = delete;
    CalendarClient& operator=(const CalendarClient&) = delete;

    bool isDead() const { return m_isDead; }
    /// Absent where what reads this calendar crashed meanwhile.
    std::optional<QList<CalendarEntry>> read();

private:
    CalendarClient(GOwned<ECalClient> client, Span span, GCancellable* cancellable,
                   Listener listener);
    void watch();
    bool isReached() const;
    static void die(EClient* client, gpointer self);

    GOwned<ECalClient> m_client;
    Span m_span;
    GOwned<ECalClientView> m_view; ///< Null where the calendar could not be watched yet.
    GCancellable* m_cancellable;
    Listener m_listener;
    bool m_isDead = false;
};

} // namespace quib
