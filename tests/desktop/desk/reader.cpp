#include "desktop/desk/reader.h"

#include "desktop/desk/deskconnection.h"

#include <QDBusArgument>
#include <QDBusInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusReply>
#include <QDBusVariant>

using namespace Qt::StringLiterals;

namespace {

const auto Accessible = u"org.a11y.atspi.Accessible"_s;
const auto Component = u"org.a11y.atspi.Component"_s;
const auto Action = u"org.a11y.atspi.Action"_s;
const auto Text = u"org.a11y.atspi.Text"_s;
const auto EditableText = u"org.a11y.atspi.EditableText"_s;
const auto Registry = u"org.a11y.atspi.Registry"_s;
const auto Properties = u"org.freedesktop.DBus.Properties"_s;

QString freshName()
{
    static int number = 0;
    return u"reader %1"_s.arg(++number);
}

QVariantList replyOf(const QDBusConnection& bus, const QDBusMessage& call)
{
    return bus.call(call, QDBus::Block, 10'000).arguments();
}

QDBusMessage callTo(const QString& service, const QString& path, const QString& interface,
                    const QString& method, const QVariantList& arguments)
{
    auto call = QDBusMessage::createMethodCall(service, path, interface, method);
    call.setArguments(arguments);
    return call;
}

/// Turns accessibility on for the desk's programs and joins them on its bus.
QDBusConnection join(const Desk& desk)
{
    auto session
        = QDBusConnection::connectToBus(desk.variable(u"DBUS_SESSION_BUS_ADDRESS"_s), freshName());
    const auto launcher = u"org.a11y.Bus"_s;
    const auto path = u"/org/a11y/bus"_s;
    const auto address = replyOf(session, callTo(launcher, path, launcher, u"GetAddress"_s, {}));
    replyOf(
        session,
        callTo(launcher, path, Properties, u"Set"_s,
               {u"org.a11y.Status"_s, u"IsEnabled"_s, QVariant::fromValue(QDBusVariant(true))}));
    return QDBusConnection::connectToBus(address.value(0).toString(), freshName());
}

quint64 statesOf(const QVariant& words)
{
    quint64 states = 0;
    int shift = 0;
    const auto argument = words.value<QDBusArgument>();
    argument.beginArray();
    while (!argument.atEnd()) {
        quint32 word = 0;
        argument >> word;
        states |= quint64(word) << shift;
        shift += 32;
    }
    argument.endArray();
    return states;
}

QRect rectOf(const QVariantList& reply)
{
    if (reply.size() == 4) { // Some methods give four numbers, others a structure of them.
        return {reply[0].toInt(), reply[1].toInt(), reply[2].toInt(), reply[3].toInt()};
    }
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    const auto argument = reply.value(0).value<QDBusArgument>();
    argument.beginStructure();
    argument >> x >> y >> width >> height;
    argument.endStructure();
    return {x, y, width, height};
}

} // namespace

std::vector<const Told*> Told::shown() const
{
    std::vector<const Told*> found;
    if (is(state::Showing)) {
        found.push_back(this);
    }
    for (const auto& part : parts) {
        const auto below = part.shown();
        found.insert(found.end(), below.begin(), below.end());
    }
    return found;
}

const Told* Told::find(const QString& wantedRole, const QString& wantedName) const
{
    for (const auto* thing : shown()) {
        if (thing->role == wantedRole && (wantedName.isEmpty() || thing->name == wantedName)) {
            return thing;
        }
    }
    return nullptr;
}

Reader::Reader(const Desk& desk)
    : m_bus(join(desk))
{
    for (const auto* event : {"object:state-changed:focused", "object:state-changed:checked"}) {
        replyOf(m_bus,
                callTo(Registry, u"/org/a11y/atspi/registry"_s, Registry, u"RegisterEvent"_s,
                       {QString::fromLatin1(event), QStringList(), QString()}));
    }
    m_bus.connect({}, {}, u"org.a11y.atspi.Event.Object"_s, u"StateChanged"_s, this,
                  SLOT(hear(QDBusMessage)));
}

Reader::~Reader()
{
    QDBusConnection::disconnectFromBus(m_bus.name());
}

bool Reader::findPanel()
{
    const auto reply = replyOf(
        m_bus,
        callTo(Registry, u"/org/a11y/atspi/accessible/root"_s, Accessible, u"GetChildren"_s, {}));
    if (reply.isEmpty()) {
        return false;
    }
    const auto argument = reply.front().value<QDBusArgument>();
    argument.beginArray();
    while (!argument.atEnd()) {
        QString service;
        QDBusObjectPath path;
        argument.beginStructure();
        argument >> service >> path;
        argument.endStructure();
        m_service = service;
        m_path = childrenOf(service, path.path()).value(0);
    }
    argument.endArray();
    return !m_path.isEmpty();
}

QStringList Reader::childrenOf(const QString& service, const QString& path)
{
    const auto reply = replyOf(m_bus, callTo(service, path, Accessible, u"GetChildren"_s, {}));
    if (reply.isEmpty()) {
        return {};
    }
    QStringList children;
    const auto argument = reply.front().value<QDBusArgument>();
    argument.beginArray();
    while (!argument.atEnd()) {
        QString owner;
        QDBusObjectPath child;
        argument.beginStructure();
        argument >> owner >> child;
        argument.endStructure();
        children << child.path();
    }
    argument.endArray();
    return children;
}

Told Reader::panel()
{
    if (m_path.isEmpty()) {
        waitFor("the panel on the accessibility bus", [this] { return findPanel(); });
    }
    return tell(m_path);
}

Told Reader::tell(const QString& path)
{
    Told told{.path = path};
    told.role = ask(path, Accessible, u"GetRoleName"_s).value(0).toString();
    told.name = property(path, Accessible, u"Name"_s).toString();
    told.description = property(path, Accessible, u"Description"_s).toString();
    told.interfaces = ask(path, Accessible, u"GetInterfaces"_s).value(0).toStringList();
    told.states = statesOf(ask(path, Accessible, u"GetState"_s).value(0));
    told.place = rectOf(ask(path, Component, u"GetExtents"_s, {0U}));
    for (const auto& child : childrenOf(m_service, path)) {
        told.parts.push_back(tell(child));
    }
    return told;
}

void Reader::press(const Told& thing)
{
    ask(thing.path, Action, u"DoAction"_s, {0});
}

void Reader::setText(const Told& field, const QString& text)
{
    ask(field.path, EditableText, u"SetTextContents"_s, {text});
}

QString Reader::textOf(const Told& field)
{
    return ask(field.path, Text, u"GetText"_s, {0, -1}).value(0).toString();
}

int Reader::cursorOf(const Told& field)
{
    return property(field.path, Text, u"CaretOffset"_s).toInt();
}

QRect Reader::placeOf(const Told& field, int character)
{
    return rectOf(ask(field.path, Text, u"GetCharacterExtents"_s, {character, 0U}));
}

void Reader::hear(const QDBusMessage& message)
{
    const auto arguments = message.arguments();
    if (arguments.value(1).toInt() == 1) {
        heard << arguments.value(0).toString() + u' ' + message.path();
    }
}

QVariantList Reader::ask(const QString& path, const QString& interface, const QString& method,
                         const QVariantList& arguments)
{
    return replyOf(m_bus, callTo(m_service, path, interface, method, arguments));
}

QVariant Reader::property(const QString& path, const QString& interface, const QString& name)
{
    return ask(path, Properties, u"Get"_s, {interface, name})
        .value(0)
        .value<QDBusVariant>()
        .variant();
}
