#include "platform/linux/instance/activationservice.h"

#include "platform/linux/base/busanswer.h"
#include "platform/linux/base/log.h"
#include "platform/linux/instance/instancename.h"

#include <QDBusMessage>
#include <QDBusReply>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr auto ApplicationInterface = "org.freedesktop.Application"_L1;
constexpr auto PinAction = "Pin"_L1; // As the desktop entry names it; its other action opens.
constexpr int PatienceMs = 2000;

constexpr uint AllowReplacement = 1;
constexpr uint ReplaceExisting = 2;
constexpr uint DoNotQueue = 4;
constexpr uint PrimaryOwner = 1;
constexpr uint AlreadyOwner = 4;

/// What lets the running program come to the front without being taken for a thief of the focus.
QVariantMap platformData()
{
    QVariantMap data;
    const auto add = [&data](const QString& key, const char* variable) {
        if (qEnvironmentVariableIsSet(variable)) {
            data.insert(key, qEnvironmentVariable(variable));
        }
    };
    add(u"activation-token"_s, "XDG_ACTIVATION_TOKEN");
    add(u"desktop-startup-id"_s, "DESKTOP_STARTUP_ID");
    return data;
}

constexpr uint AsItsOwner = ReplaceExisting | DoNotQueue;
constexpr uint ForTheMoment = AllowReplacement | DoNotQueue;

QDBusMessage requestName(const QString& name, uint manner)
{
    auto message
        = QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s,
                                         u"org.freedesktop.DBus"_s, u"RequestName"_s);
    message << name << manner;
    return message;
}

} // namespace

ActivationService::ActivationService(const SessionBus& bus)
    : m_bus(bus)
{
}

ActivationService::Answer ActivationService::claim(const QString& busName)
{
    if (!m_bus.isConnected()) {
        return Answer::NoBus;
    }
    offerObject(busName);
    return takeAnswer(
        busName,
        m_bus.connection().call(requestName(busName, AsItsOwner), QDBus::Block, PatienceMs));
}

void ActivationService::startClaim(const QString& busName)
{
    offerObject(busName);
    whenAnswered(m_bus.connection().asyncCall(requestName(busName, AsItsOwner)), this,
                 instanceLog(), "the claim of the name",
                 [this, busName](const QDBusPendingCall& reply) {
                     const auto answer = takeAnswer(busName, reply.reply());
                     if (answer != Answer::NoBus) {
                         Q_EMIT claimed(answer);
                     }
                 });
}

void ActivationService::answerTo(const QString& busName)
{
    offerObject(busName);
    m_bus.connection().asyncCall(requestName(busName, ForTheMoment));
}

/// Before the name is: whoever finds that may call at once.
void ActivationService::offerObject(const QString& busName)
{
    auto bus = m_bus.connection();
    bus.registerObject(objectPath(busName), this, QDBusConnection::ExportScriptableSlots);
}

ActivationService::Answer ActivationService::takeAnswer(const QString& busName,
                                                        const QDBusReply<uint>& reply) const
{
    if (reply.isValid() && (reply == PrimaryOwner || reply == AlreadyOwner)) {
        return Answer::Ours;
    }
    auto bus = m_bus.connection();
    bus.unregisterObject(objectPath(busName));
    return reply.isValid() ? Answer::Taken : Answer::NoBus;
}

void ActivationService::activateOther(const QString& busName) const
{
    auto message = QDBusMessage::createMethodCall(busName, objectPath(busName),
                                                  ApplicationInterface, u"Activate"_s);
    message.setAutoStartService(false);
    message << platformData();
    m_bus.connection().call(message, QDBus::Block, PatienceMs);
}

void ActivationService::Activate(const QVariantMap& /*platformData*/)
{
    Q_EMIT activated();
}

void ActivationService::Open(const QStringList& /*uris*/, const QVariantMap& /*platformData*/)
{
    Q_EMIT activated();
}

void ActivationService::ActivateAction(const QString& action, const QVariantList& /*parameter*/,
                                       const QVariantMap& /*platformData*/)
{
    if (action == PinAction) {
        Q_EMIT pinAsked();
    } else {
        Q_EMIT activated();
    }
}

} // namespace quib
