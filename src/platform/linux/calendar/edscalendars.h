#pragma once

#include "integrations/calendar/calendarentry.h"

#include <QList>
#include <QtPlugin>

#include <functional>
#include <memory>

namespace quib {

/// The calendars of Evolution Data Server, read on a thread of their own. Ending this ends the
/// thread, or leaves it to itself where the service hangs.
class EdsCalendars {
public:
    using Answer = std::function<void(const QList<CalendarEntry>&)>;

    EdsCalendars() = default;
    virtual ~EdsCalendars() = default;
    EdsCalendars(const EdsCalendars&) = delete;
    EdsCalendars& operator=(const EdsCalendars&) = delete;

    /// What happens between the two moments, which are watched from now on. The answer is given on
    /// the other thread, and never once this has ended.
    virtual void read(const QDateTime& from, const QDateTime& to, Answer answer) = 0;
    /// Ends without waiting for the thread. Nothing is asked afterwards.
    virtual void leave() = 0;
};

/// What the plugin with the calendars offers. No other part of the program knows the libraries of
/// that service, so that it runs without them.
class EdsPlugin {
public:
    EdsPlugin() = default;
    virtual ~EdsPlugin() = default;
    EdsPlugin(const EdsPlugin&) = delete;
    EdsPlugin& operator=(const EdsPlugin&) = delete;

    /// Tells of changes on the other thread, likewise. Null where there is no room for a thread.
    virtual std::unique_ptr<EdsCalendars> open(std::function<void()> changed) = 0;
};

} // namespace quib

Q_DECLARE_INTERFACE(quib::EdsPlugin, "org.korvel.Quib.EdsPlugin")
