#pragma once

#include "integrations/calendar/calendarentry.h"

#include <QList>
#include <QObject>

#include <functional>

namespace quib {

/// What the user lets the program do with the calendars.
enum class CalendarAuthorization { NotDetermined, Restricted, Denied, FullAccess, WriteOnly };

/// The user's calendars. Implemented once per platform; on the main thread, never waiting. Each
/// answer is given at most once, later, on the main thread, and never once the store is gone; a
/// partner that hangs never answers. Nothing of the calendars is touched before access is granted.
class CalendarStore : public QObject {
    Q_OBJECT

public:
    using AuthorizationAnswer = std::function<void(CalendarAuthorization)>;
    using AccessAnswer = std::function<void(bool isGranted)>;
    using EntriesAnswer = std::function<void(const QList<CalendarEntry>&)>;

    using QObject::QObject;

    virtual void readAuthorization(AuthorizationAnswer answer) = 0;
    /// Asks the user where the desktop can. Who can't be asked has asked for it by pressing.
    virtual void requestFullAccess(AccessAnswer answer) = 0;
    /// What all calendars have between the two moments, also in part; what is cancelled left out.
    /// Empty where the calendars can't be read.
    virtual void readEntries(const QDateTime& from, const QDateTime& to, EntriesAnswer answer) = 0;

Q_SIGNALS:
    /// Something of what was read last may be different now, the authorisation too.
    void changed();
};

} // namespace quib
