#include "platform/linux/calendar/calendarpermission.h"

#include "platform/linux/base/busanswer.h"
#include "platform/linux/base/log.h"
#include "platform/linux/calendar/consentfile.h"

#include <QDBusObjectPath>
#include <QDBusPendingReply>

#include <algorithm>
#include <limits>
#include <utility>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr auto StoreName = "org.freedesktop.impl.portal.PermissionStore"_L1;
constexpr auto StorePath = "/org/freedesktop/impl/portal/PermissionStore"_L1;
constexpr auto BackendPrefix = "org.freedesktop.impl.portal.desktop."_L1;
constexpr auto BackendPath = "/org/freedesktop/portal/desktop"_L1;
constexpr auto AccessInterface = "org.freedesktop.impl.portal.Access"_L1;
constexpr auto RequestPath = "/org/freedesktop/portal/desktop/request/quib/calendar"_L1;

// What the permission stands under.
const auto Table = u"calendar"_s;
const auto Id = u"events"_s;
const auto ApplicationId = u"org.korvel.Quib"_s;
const auto Yes = u"yes"_s;
const auto No = u"no"_s;

// Milliseconds.
constexpr int UsualPatience = -1; ///< The bus's own.
constexpr int Forever = std::numeric_limits<int>::max(); ///< The user may think about it.

// What the dialog answers. More than these stand for a dialog that was closed.
constexpr uint Allowed = 0;
constexpr uint Refused = 1;

constexpr qsizetype LongestBusName = 255;

/// That there is nobody to ask, or nobody who could be started, rather than somebody who failed.
bool meansNobody(const QDBusError& error)
{
    switch (error.type()) {
    case QDBusError::TimedOut: // Of starting them; who is there and hangs gives no reply.
    case QDBusError::InvalidService:
    case QDBusError::ServiceUnknown:
    case QDBusError::UnknownInterface:
    case QDBusError::UnknownMethod:
    case QDBusError::UnknownObject: return true;
    default:
        return error.name() == "org.freedesktop.DBus.Error.NameHasNoOwner"_L1
            || error.name().startsWith("org.freedesktop.DBus.Error.Spawn."_L1)
            || error.name().startsWith("org.freedesktop.systemd1."_L1);
    }
}

QDBusMessage storeCall(const QString& method)
{
    return QDBusMessage::createMethodCall(StoreName, StorePath, StoreName, method);
}

QDBusMessage dialogOf(const QString& backend)
{
    auto message = QDBusMessage::createMethodCall(BackendPrefix + backend, BackendPath,
                                                  AccessInterface, u"AccessDialog"_s);
    const QString parentWindow;
    const QString body;
    message << QVariant::fromValue(QDBusObjectPath(RequestPath)) << ApplicationId << parentWindow
            << u"Allow Korvel Quib to read your calendars?"_s
            << u"Today’s meetings are shown in the notch."_s << body
            << QVariantMap{{u"deny_label"_s, u"Don’t Allow"_s},
                           {u"grant_label"_s, u"Allow"_s},
                           {u"icon"_s, u"x-office-calendar"_s}};
    return message;
}

bool mayEndABusName(const QString& word)
{
    const bool startsWithDigit = word.front() >= u'0' && word.front() <= u'9';
    return !startsWithDigit && BackendPrefix.size() + word.size() <= LongestBusName
        && std::ranges::all_of(word, [](QChar c) {
               return (c >= u'a' && c <= u'z') || (c >= u'0' && c <= u'9') || c == u'_'
                   || c == u'-';
           });
}

/// Of those that have such a dialog, this desktop's own first.
QStringList backends()
{
    auto names
        = qEnvironmentVariable("XDG_CURRENT_DESKTOP").toLower().split(u':', Qt::SkipEmptyParts);
    names.removeIf([](const QString& name) { return !mayEndABusName(name); });
    names << u"gtk"_s << u"gnome"_s << u"kde"_s;
    names.removeDuplicates();
    return names;
}

CalendarAuthorization authorizationOf(std::optional<bool> consent)
{
    if (!consent) {
        return CalendarAuthorization::NotDetermined;
    }
    return *consent ? CalendarAuthorization::FullAccess : CalendarAuthorization::Denied;
}

std::optional<bool> consentOf(const QStringList& permissions)
{
    const bool isDecided = permissions.contains(Yes) || permissions.contains(No);
    return isDecided ? std::optional(permissions.contains(Yes)) : std::nullopt;
}

} // namespace

CalendarPermission::CalendarPermission(std::shared_ptr<SessionBus> bus)
    : m_bus(std::move(bus))
{
}

void CalendarPermission::read(CalendarStore::AuthorizationAnswer answer)
{
    const auto message = storeCall(u"GetPermission"_s) << Table << Id << ApplicationId;
    send(message, UsualPatience, [this, answer = std::move(answer)](const QDBusPendingCall& call) {
        const QDBusPendingReply<QStringList> reply = call;
        answer(authorizationOf(isMissing(reply) ? readConsent() : consentOf(reply.value())));
    });
}

void CalendarPermission::ask(CalendarStore::AccessAnswer answer)
{
    m_asking.push_back(std::move(answer));
    if (m_asking.size() == 1) {
        askNextOf(m_bus->isConnected() ? backends() : QStringList());
    }
}

void CalendarPermission::askNextOf(QStringList backends)
{
    if (backends.isEmpty()) {
        QMetaObject::invokeMethod(this, &CalendarPermission::consent, Qt::QueuedConnection);
        return;
    }
    const auto message = dialogOf(backends.takeFirst());
    send(message, Forever, [this, backends](const QDBusPendingCall& call) {
        const QDBusPendingReply<uint, QVariantMap> reply = call;
        if (reply.isError() && meansNobody(reply.error())) {
            askNextOf(backends);
        } else if (reply.isError() || reply.argumentAt<0>() > Refused) {
            answerAll(false); // What was not decided is not kept.
        } else {
            decide(reply.argumentAt<0>() == Allowed);
        }
    });
}

void CalendarPermission::consent()
{
    decide(true);
}

void CalendarPermission::decide(bool isGranted)
{
    const auto message = storeCall(u"SetPermission"_s)
        << Table << true << Id << ApplicationId << QStringList(isGranted ? Yes : No);
    send(message, UsualPatience, [this, isGranted](const QDBusPendingCall& call) {
        if (isMissing(call)) {
            writeConsent(isGranted);
        }
    });
    answerAll(isGranted);
}

void CalendarPermission::answerAll(bool isGranted)
{
    for (const auto& answer : std::exchange(m_asking, {})) {
        answer(isGranted);
    }
}

bool CalendarPermission::isMissing(const QDBusPendingCall& call) const
{
    return call.isError() && (!m_bus->isConnected() || meansNobody(call.error()));
}

void CalendarPermission::send(const QDBusMessage& message, int patience, Then then)
{
    const auto call = m_bus->isConnected()
        ? m_bus->connection().asyncCall(message, patience)
        : QDBusPendingCall::fromError(QDBusError(QDBusError::Disconnected, {}));
    whenAnswered(call, this, calendarLog(), "the permission store", std::move(then));
}

} // namespace quib
