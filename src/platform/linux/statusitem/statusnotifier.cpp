#include "platform/linux/statusitem/statusnotifier.h"

#include "platform/linux/base/log.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

#include <limits>
#include <utility>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr auto WatcherName = "org.kde.StatusNotifierWatcher"_L1;
constexpr auto WatcherPath = "/StatusNotifierWatcher"_L1;
constexpr auto WatcherInterface = "org.kde.StatusNotifierWatcher"_L1;
constexpr auto ItemPath = "/StatusNotifierItem"_L1; // Where watchers look when told only a name.
constexpr auto MenuPath = "/MenuBar"_L1;

/// A hung watcher answers once it goes on, and the bus answers for one that dies.
constexpr int ForEver = std::numeric_limits<int>::max();

QDBusMessage registration(const QString& busName)
{
    auto message = QDBusMessage::createMethodCall(WatcherName, WatcherPath, WatcherInterface,
                                                  u"RegisterStatusNotifierItem"_s);
    message << busName;
    return message;
}

QDBusMessage hostQuestion()
{
    auto message = QDBusMessage::createMethodCall(WatcherName, WatcherPath,
                                                  u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    message << QString(WatcherInterface) << u"IsStatusNotifierHostRegistered"_s;
    return message;
}

std::unique_ptr<QDBusPendingCallWatcher> ask(const QDBusConnection& bus, QDBusMessage message)
{
    message.setAutoStartService(false);
    return std::make_unique<QDBusPendingCallWatcher>(bus.asyncCall(message, ForEver));
}

} // namespace

StatusNotifier::StatusNotifier(std::shared_ptr<SessionBus> bus)
    : m_bus(std::move(bus))
    , m_item(MenuPath)
{
    connect(&m_menu, &MenuService::willOpen, this, &StatusItem::menuWillOpen);
    connect(&m_menu, &MenuService::chosen, this, &StatusItem::chosen);
    connect(&m_item, &ItemService::pressed, this, &StatusItem::pressed);
    connect(m_bus.get(), &SessionBus::connected, this, &StatusNotifier::enterBus);
    connect(m_bus.get(), &SessionBus::lost, this, &StatusNotifier::leaveBus);
}

StatusNotifier::~StatusNotifier() = default;

void StatusNotifier::install(const StatusIcon& icon)
{
    m_item.setIcon(icon);
    m_isInstalled = true;
    enterBus();
}

void StatusNotifier::enterBus()
{
    if (!m_isInstalled || !m_bus->isConnected()) {
        return;
    }
    // The objects first: whoever hears of the item may ask at once.
    const auto contents = QDBusConnection::ExportScriptableContents;
    auto bus = m_bus->connection();
    bus.registerObject(MenuPath, &m_menu, contents);
    bus.registerObject(ItemPath, &m_item, contents);
    followWatcher();
    tellWatcher();
}

/// No bus, no status bar that shows anything.
void StatusNotifier::leaveBus()
{
    m_watcher.reset();
    changeWatcher({}, {}, {});
}

void StatusNotifier::followWatcher()
{
    auto bus = m_bus->connection();
    m_watcher = std::make_unique<QDBusServiceWatcher>(WatcherName, bus,
                                                      QDBusServiceWatcher::WatchForOwnerChange);
    connect(m_watcher.get(), &QDBusServiceWatcher::serviceOwnerChanged, this,
            &StatusNotifier::changeWatcher);
    for (const auto& signal :
         {u"StatusNotifierHostRegistered"_s, u"StatusNotifierHostUnregistered"_s}) {
        // Without the name of the sender, which Qt would ask the bus for and wait.
        bus.connect({}, WatcherPath, WatcherInterface, signal, this, SLOT(askForHost()));
    }
}

void StatusNotifier::changeWatcher(const QString& /*name*/, const QString& /*before*/,
                                   const QString& now)
{
    m_registration.reset();
    m_hostAnswer.reset();
    setShown(false);
    if (!now.isEmpty()) {
        tellWatcher();
    }
}

void StatusNotifier::tellWatcher()
{
    m_registration = ask(m_bus->connection(), registration(m_bus->connection().baseService()));
    connect(m_registration.get(), &QDBusPendingCallWatcher::finished, this,
            &StatusNotifier::askForHost);
}

void StatusNotifier::askForHost()
{
    if (!m_registration || !m_registration->isFinished() || m_registration->isError()) {
        return;
    }
    m_hostAnswer = ask(m_bus->connection(), hostQuestion());
    connect(m_hostAnswer.get(), &QDBusPendingCallWatcher::finished, this,
            &StatusNotifier::takeAnswer);
}

void StatusNotifier::takeAnswer()
{
    const QDBusPendingReply<QDBusVariant> reply = *m_hostAnswer;
    setShown(reply.isValid() && reply.value().variant().toBool());
}

void StatusNotifier::setShown(bool isShown)
{
    if (isShown != m_isShown) {
        m_isShown = isShown;
        qCDebug(statusItemLog) << (isShown ? "is shown" : "is not shown");
        Q_EMIT isShownChanged();
    }
}

} // namespace quib
