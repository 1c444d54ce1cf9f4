#include "outputs.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QVariantMap>

using namespace Qt::StringLiterals;

namespace {

constexpr auto Service = "org.gnome.Mutter.DisplayConfig"_L1;
constexpr auto Path = "/org/gnome/Mutter/DisplayConfig"_L1;

/// A screen that could be on, and a size that it can have.
struct Monitor {
    QString connector;
    QString mode;
};

struct MonitorPlace {
    int x;
    Monitor monitor;
};

QDBusArgument& operator<<(QDBusArgument& to, const Monitor& monitor)
{
    to.beginStructure();
    to << monitor.connector << monitor.mode << QVariantMap();
    to.endStructure();
    return to;
}

const QDBusArgument& operator>>(const QDBusArgument& from, Monitor& /*monitor*/)
{
    return from; // Never asked for; the type wants it.
}

QDBusArgument& operator<<(QDBusArgument& to, const MonitorPlace& place)
{
    constexpr double Scale = 1;
    constexpr uint NotTurned = 0;
    to.beginStructure();
    to << place.x << 0 << Scale << NotTurned << (place.x == 0) << QList{place.monitor};
    to.endStructure();
    return to;
}

const QDBusArgument& operator>>(const QDBusArgument& from, MonitorPlace& /*place*/)
{
    return from; // Never asked for; the type wants it.
}

} // namespace

Q_DECLARE_METATYPE(Monitor)
Q_DECLARE_METATYPE(MonitorPlace)

namespace {

QDBusMessage ask(const QString& what, const QVariantList& values = {})
{
    auto call = QDBusMessage::createMethodCall(Service, Path, Service, what);
    call.setArguments(values);
    return QDBusConnection::sessionBus().call(call);
}

/// The first mode of each monitor; these have no other.
QList<Monitor> readMonitors(const QDBusArgument& from)
{
    QList<Monitor> monitors;
    from.beginArray();
    while (!from.atEnd()) {
        Monitor monitor;
        from.beginStructure();
        from.beginStructure();
        from >> monitor.connector;
        from.endStructure();
        from.beginArray();
        from.beginStructure();
        from >> monitor.mode;
        from.endStructure();
        from.endArray();
        from.endStructure();
        monitors << monitor;
    }
    from.endArray();
    return monitors;
}

} // namespace

QByteArray setOutputsOfMutter(const QList<int>& numbers)
{
    qDBusRegisterMetaType<Monitor>();
    qDBusRegisterMetaType<QList<Monitor>>();
    qDBusRegisterMetaType<MonitorPlace>();
    qDBusRegisterMetaType<QList<MonitorPlace>>();
    constexpr uint UntilChanged = 1;
    constexpr int Width = 1600;
    const auto state = ask(u"GetCurrentState"_s);
    if (state.type() != QDBusMessage::ReplyMessage) {
        return state.errorMessage().toUtf8();
    }
    const auto monitors = readMonitors(state.arguments().at(1).value<QDBusArgument>());
    QList<MonitorPlace> places;
    for (const auto number : numbers) {
        places << MonitorPlace{static_cast<int>(places.size()) * Width, monitors.value(number)};
    }
    const auto reply
        = ask(u"ApplyMonitorsConfig"_s,
              {state.arguments().at(0), UntilChanged, QVariant::fromValue(places), QVariantMap()});
    return reply.errorMessage().toUtf8();
}
