#include "platform/linux/base/bus.h"

#include <QRegularExpression>
#include <QUuid>

#include <string_view>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace quib {

namespace {

constexpr auto NoConnection = "none"_L1;
constexpr auto LocalPath = "/org/freedesktop/DBus/Local"_L1; // The connection itself speaks there.
constexpr auto LocalInterface = "org.freedesktop.DBus.Local"_L1;

constexpr std::string_view Greeting("\0AUTH\r\n", 7); ///< Answered with the ways to log in.
constexpr auto PatienceAtTheEnd = 1s;

/// The id is of the bus that was there when the session began: no later one is let in with it.
QString withoutId(QString address)
{
    static const QRegularExpression id(u",guid=[^,;]*"_s);
    return address.remove(id);
}

/// Other ways would start a bus.
bool leadsToABus(const QByteArray& address)
{
    return !address.contains("autolaunch:")
        && g_dbus_is_supported_address(address.constData(), nullptr) != FALSE;
}

/// Whether somebody there speaks as a bus does. Waits for one that hangs to go on.
bool answers(const QByteArray& address, GCancellable* end)
{
    const GOwned<GIOStream> stream(
        g_dbus_address_get_stream_sync(address.constData(), nullptr, end, nullptr));
    if (!stream) {
        return false;
    }
    auto* const out = g_io_stream_get_output_stream(stream.get());
    auto* const in = g_io_stream_get_input_stream(stream.get());
    char answer = 0;
    return g_output_stream_write_all(out, Greeting.data(), Greeting.size(), nullptr, end, nullptr)
        && g_input_stream_read(in, &answer, 1, end, nullptr) > 0;
}

} // namespace

QString systemBusAddress()
{
    return qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS",
                                u"unix:path=/run/dbus/system_bus_socket"_s);
}

bool answersWithin(std::chrono::milliseconds patience, const QString& address)
{
    const GOwned<GCancellable> end{g_cancellable_new()};
    bool isAnswered = false;
    const std::unique_ptr<QThread> asking(QThread::create([&, bus = address.toLatin1()] {
        isAnswered = leadsToABus(bus) && answers(bus, end.get());
    }));
    asking->start();
    if (!asking->wait(QDeadlineTimer(patience))) {
        g_cancellable_cancel(end.get());
        asking->wait();
    }
    return isAnswered;
}

Bus::Bus(QString address, Reach reach)
    : m_address(withoutId(std::move(address)))
    , m_connection(NoConnection)
{
    if (!leadsToABus(m_address.toLatin1())) {
        return;
    }
    m_wait = std::make_unique<BusWait>(m_address);
    connect(m_wait.get(), &BusWait::isWorthATry, this, &Bus::reach);
    if (reach == Reach::Now) {
        attempt();
    }
}

Bus::~Bus()
{
    g_cancellable_cancel(m_end.get());
    if (m_attempt && !m_attempt->wait(QDeadlineTimer(PatienceAtTheEnd))) {
        m_attempt.release(); // A bus that hangs holds it: the program ends without it. NOLINT
    }
    QDBusConnection::disconnectFromBus(m_name);
}

bool Bus::wait(std::chrono::milliseconds patience)
{
    reach();
    if (m_attempt && m_attempt->wait(QDeadlineTimer(patience))) {
        takeConnection();
    }
    return isConnected();
}

/// Qt's own thread would wait for a bus that hangs, and with it whoever uses any bus.
void Bus::attempt()
{
    if (!m_wait || m_attempt || isConnected()) {
        return;
    }
    m_name = u"quib "_s + QUuid::createUuid().toString(QUuid::Id128);
    m_attempt.reset(QThread::create([address = m_address, name = m_name, end = m_end.get()] {
        if (answers(address.toLatin1(), end)) {
            QDBusConnection::connectToBus(address, name);
        }
    }));
    connect(m_attempt.get(), &QThread::finished, this, &Bus::takeConnection);
    m_attempt->start();
}

void Bus::takeConnection()
{
    if (!m_attempt || !m_attempt->isFinished()) {
        return;
    }
    m_attempt->wait();
    m_attempt.reset();
    QDBusConnection connection(m_name);
    connection.connect({}, LocalPath, LocalInterface, u"Disconnected"_s, this, SLOT(lose()));
    if (!connection.isConnected()) {
        QDBusConnection::disconnectFromBus(m_name);
        m_wait->again();
        return;
    }
    m_wait->stop();
    m_connection = connection;
    Q_EMIT connected();
}

void Bus::lose()
{
    Q_EMIT lost();
    m_connection = QDBusConnection(NoConnection);
    QDBusConnection::disconnectFromBus(m_name);
    m_wait->again();
}

} // namespace quib
