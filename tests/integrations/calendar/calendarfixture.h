#pragma once

#include "integrations/calendar/calendarcontroller.h"
#include "support/fakes/fakecalendarstore.h"
#include "support/fakes/handclock.h"

/// A controller and its calendars, on a Monday at nine in UTC, which a test may change.
struct CalendarFixture {
    HandClock hands;
    QTimeZone zone = QTimeZone::utc();
    FakeCalendarStore store;
    quib::CalendarController controller{&store, hands.clock(), [this] { return zone; }};

    void grant() { store.authorizations.at(0)(quib::CalendarAuthorization::FullAccess); }
    void answer(const QList<quib::CalendarEntry>& entries)
    {
        store.readings.back().answer(entries);
    }

    /// At hours from the present moment of the clock.
    quib::CalendarEntry entry(const QString& title, double from, double to) const
    {
        const auto at = [&](double hours) { return hands.now.addMSecs(qRound64(hours * 3.6e6)); };
        return {.id = title, .title = title, .start = at(from), .end = at(to)};
    }

    QStringList titles() const
    {
        QStringList titles;
        for (const auto& event : controller.events()) {
            titles << event.title;
        }
        return titles;
    }
};
