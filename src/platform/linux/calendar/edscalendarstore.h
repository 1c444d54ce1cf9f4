#pragma once

#include "integrations/calendar/calendarstore.h"
#include "platform/linux/calendar/calendarpermission.h"
#include "platform/linux/calendar/edscalendars.h"

#include <memory>
#include <vector>

namespace quib {

/// The calendars of Evolution Data Server. The plugin that knows that service is loaded when
/// events are first read, which takes the permission; without the plugin or the service there are
/// none.
class EdsCalendarStore final : public CalendarStore {
    Q_OBJECT

public:
    /// With the plugin beside the program.
    explicit EdsCalendarStore(const std::shared_ptr<SessionBus>& bus);
    EdsCalendarStore(const std::shared_ptr<SessionBus>& bus, QString plugin);
    ~EdsCalendarStore() override;
    EdsCalendarStore(const EdsCalendarStore&) = delete;
    EdsCalendarStore& operator=(const EdsCalendarStore&) = delete;

    void readAuthorization(AuthorizationAnswer answer) override;
    void requestFullAccess(AccessAnswer answer) override;
    void readEntries(const QDateTime& from, const QDateTime& to, EntriesAnswer answer) override;

private:
    enum class State { Closed, Opening, Open, Missing };

    struct Question {
        QDateTime from;
        QDateTime to;
        EntriesAnswer answer;
    };

    void open();
    void takePlugin();
    void close();
    void ask(const Question& question);

    std::shared_ptr<SessionBus> m_bus;
    CalendarPermission m_permission;
    QString m_plugin;
    bool m_isGranted = false;
    bool m_wasAnswered = false; ///< By the user, which counts more than what was read.
    State m_state = State::Closed;
    std::unique_ptr<EdsCalendars> m_calendars; ///< Null unless open.
    std::vector<Question> m_waiting; ///< For the calendars to be open.
};

} // namespace quib
