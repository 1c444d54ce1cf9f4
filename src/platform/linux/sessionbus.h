#pragma once

#include "platform/linux/buswait.h"
#include "platform/linux/gowned.h"

#include <QDBusConnection>
#include <QObject>
#include <QThread>

#include <chrono>
#include <memory>

namespace quib {

/// The user's session bus, by one connection of our own: there as soon as the bus answers, and
/// again whenever it has come back. A bus that hangs keeps nobody waiting. None is ever started.
class SessionBus final : public QObject {
    Q_OBJECT

public:
    /// The one that the environment names. While it does not answer, Qt and GIO are told that there
    /// is none: they would wait for it without end, or start a stray one.
    SessionBus();
    /// None where the address is empty.
    explicit SessionBus(QString address);
    ~SessionBus() override;
    SessionBus(const SessionBus&) = delete;
    SessionBus& operator=(const SessionBus&) = delete;

    /// Not connected while there is none.
    const QDBusConnection& connection() const { return m_connection; }
    bool isConnected() const { return m_connection.isConnected(); }
    /// Until it is connected, or the attempt that is under way has failed; true where it is. For
    /// those who can do nothing without.
    bool wait(std::chrono::milliseconds patience);

Q_SIGNALS:
    void connected();
    void lost();

private Q_SLOTS:
    void lose();

private: // NOLINT(readability-redundant-access-specifiers): ends the slots
    void reach();
    void takeConnection();
    void tellOthers() const;

    QString m_address;
    QString m_name; ///< Of the connection.
    QDBusConnection m_connection;
    std::unique_ptr<BusWait> m_wait; ///< Null where no bus can come.
    GOwned<GCancellable> m_end{g_cancellable_new()};
    std::unique_ptr<QThread> m_attempt; ///< Null unless one is under way.
};

} // namespace quib
