#pragma once

#include "platform/linux/calendar/eds/announcements.h"
#include "platform/linux/calendar/eds/calendarworker.h"
#include "platform/linux/calendar/eds/delayedcall.h"

#include <QByteArray>
#include <QList>

#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace quib {

/// All of the user's calendars, each on a thread of its own. What can't be reached, and what does
/// not answer for a while, has the events that were read last. Lives on a thread with a loop of
/// GLib's own.
class CalendarReader {
public:
    using Answer = std::function<void(const QList<CalendarEntry>&)>;
    /// Has work done on the thread on which this lives. From any thread.
    using Post = std::function<void(std::function<void()> work)>;

    CalendarReader(Post post, GCancellable* cancellable, std::function<void()> changed);
    /// What hangs holds it up for a moment.
    ~CalendarReader();
    CalendarReader(const CalendarReader&) = delete;
    CalendarReader& operator=(const CalendarReader&) = delete;

    /// Calendar by calendar. Watches that span from now on. A question before this one is answered
    /// with what has come.
    void read(const Span& span, Answer answer);

private:
    struct Calendar {
        std::shared_ptr<CalendarWorker> worker; ///< Null where there is no room for a thread.
        QList<CalendarEntry> entries; ///< As read last.
        bool isAsked = false; ///< And has yet to answer.
        bool isAskedAgain = false; ///< Meanwhile.
        bool isAwaited = false; ///< By the question of now.
    };

    using Calendars = std::map<QByteArray, Calendar>;

    bool open();
    void close();
    void list();
    void watch(const Span& span);
    void ask(const QByteArray& id, Calendar& calendar);
    void take(const QByteArray& id, const std::shared_ptr<CalendarWorker>& worker,
              const std::optional<QList<CalendarEntry>>& entries);
    void countAnswer(bool isRead);
    void finish();
    std::shared_ptr<CalendarWorker> makeWorker(ESource* source);
    /// Posts the work; it is not done once this has gone. The result is called on any thread.
    std::function<void()> posting(std::function<void()> work) const;

    Post m_post;
    GCancellable* m_cancellable;
    GOwned<GDBusConnection> m_bus; ///< Null unless open.
    GOwned<ESourceRegistry> m_registry;
    Span m_span;
    Calendars m_calendars; ///< By id.
    std::vector<QByteArray> m_order; ///< Of the ids, as the registry has them.
    Answer m_answer; ///< To the question of now; empty when there is none.
    int m_awaited = 0; ///< Calendars that have yet to answer it.
    bool m_isFirstAwaited = false; ///< None of them has been read yet.
    DelayedCall m_patience; ///< With them.
    Announcements m_announcements;
    std::shared_ptr<bool> m_isHere = std::make_shared<bool>(true); ///< Goes with this.
};

} // namespace quib
