#pragma once

#include "integrations/calendar/calendarstore.h"
#include "platform/linux/base/sessionbus.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCall>

#include <vector>

namespace quib {

/// Whether the user lets the program read the calendars, as the desktop's permission store keeps
/// it; where there is no such store, as a file of our own does.
class CalendarPermission : public QObject {
    Q_OBJECT

public:
    explicit CalendarPermission(std::shared_ptr<SessionBus> bus);

    /// Not determined while nothing is decided. A store that hangs answers late with that.
    void read(CalendarStore::AuthorizationAnswer answer);
    /// Shows the desktop's dialog; where it has none, asking is the consent. What the user decides
    /// is kept. Who asks while the dialog is open has its answer too.
    void ask(CalendarStore::AccessAnswer answer);

private:
    using Then = std::function<void(const QDBusPendingCall&)>;

    void askNextOf(QStringList backends);
    void consent();
    void decide(bool isGranted);
    void answerAll(bool isGranted);
    /// That there is nobody who could have answered.
    bool isMissing(const QDBusPendingCall& call) const;
    void send(const QDBusMessage& message, int patience, Then then);

    std::shared_ptr<SessionBus> m_bus;
    std::vector<CalendarStore::AccessAnswer> m_asking;
};

} // namespace quib
