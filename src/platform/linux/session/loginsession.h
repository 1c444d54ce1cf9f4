#pragma once

#include "platform/linux/base/bus.h"

#include <QDBusPendingCall>
#include <QDBusServiceWatcher>

#include <functional>

namespace quib {

/// What the login service (logind, elogind) says of the session that we run in: whether a locker
/// has marked it as locked. What others on the system's bus say of it does not count.
class LoginSession final : public QObject {
    Q_OBJECT

public:
    explicit LoginSession(std::shared_ptr<Bus> systemBus);
    ~LoginSession() override;

    /// False until the service has answered, and where there is none.
    bool isLocked() const { return m_isLocked; }

Q_SIGNALS:
    void isLockedChanged();

private Q_SLOTS:
    void readHint();

private: // NOLINT(readability-redundant-access-specifiers): ends the slots
    using Then = std::function<void(const QDBusPendingCall&)>;

    void enterBus();
    void leaveBus();
    void findSession(QStringList names);
    void follow(const QString& path);
    void send(const QDBusMessage& message, Then then);
    void setLocked(bool isLocked);

    std::shared_ptr<Bus> m_bus;
    std::unique_ptr<QDBusServiceWatcher> m_service; ///< Null without a bus.
    QString m_path; ///< Of the session's object; empty until it is known.
    bool m_isLocked = false;
};

} // namespace quib
