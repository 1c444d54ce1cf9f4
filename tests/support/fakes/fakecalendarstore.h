#pragma once

#include "integrations/calendar/calendarstore.h"

#include <utility>
#include <vector>

/// Calendars that answer when the test says so. The answers are kept in the order of the questions.
class FakeCalendarStore final : public quib::CalendarStore {
public:
    struct Reading {
        QDateTime from;
        QDateTime to;
        EntriesAnswer answer;
    };

    std::vector<AuthorizationAnswer> authorizations;
    std::vector<AccessAnswer> requests;
    std::vector<Reading> readings;

    void readAuthorization(AuthorizationAnswer answer) override
    {
        authorizations.push_back(std::move(answer));
    }

    void requestFullAccess(AccessAnswer answer) override { requests.push_back(std::move(answer)); }

    void readEntries(const QDateTime& from, const QDateTime& to, EntriesAnswer answer) override
    {
        readings.push_back({.from = from, .to = to, .answer = std::move(answer)});
    }
};
