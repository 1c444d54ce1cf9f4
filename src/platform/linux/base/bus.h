#pragma once

#include "platform/linux/base/buswait.h"
#include "platform/linux/base/gowned.h"

#include <QDBusConnection>
#include <QObject>
#include <QThread>

#include <chrono>
#include <memory>

namespace quib {

/// Of the bus that all users of the machine share.
QString systemBusAddress();

/// Whether a bus says a word there before that time is over. Needs no application object.
bool answersWithin(std::chrono::milliseconds patience, const QString& address);

/// A message bus, by one connection of our own: there as soon as the bus answers, and again
/// whenever it has come back. A bus that hangs keeps nobody waiting. None is ever started.
class Bus : public QObject {
    Q_OBJECT

public:
    enum class Reach { Now, Later };

    /// None where the address is empty. One that is reached later needs a call of reach().
    explicit Bus(QString address, Reach reach = Reach::Now);
    ~Bus() override;
    Bus(const Bus&) = delete;
    Bus& operator=(const Bus&) = delete;

    /// Not connected while there is none.
    const QDBusConnection& connection() const { return m_connection; }
    bool isConnected() const { return m_connection.isConnected(); }
    /// Begins to connect, unless that is under way or done.
    virtual void reach() { attempt(); }
    /// Until it is connected, or the attempt that is under way has failed; true where it is. For
    /// those who can do nothing without.
    bool wait(std::chrono::milliseconds patience);

Q_SIGNALS:
    void connected();
    void lost();

protected:
    const QString& address() const { return m_address; }

private Q_SLOTS:
    void lose();

private: // NOLINT(readability-redundant-access-specifiers): ends the slots
    void attempt();
    void takeConnection();

    QString m_address;
    QString m_name; ///< Of the connection.
    QDBusConnection m_connection;
    std::unique_ptr<BusWait> m_wait; ///< Null where no bus can come.
    GOwned<GCancellable> m_end{g_cancellable_new()};
    std::unique_ptr<QThread> m_attempt; ///< Null unless one is under way.
};

} // namespace quib
