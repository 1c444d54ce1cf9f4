#include "platform/linux/calendar/edscalendarstore.h"

#include "platform/linux/base/companion.h"
#include "platform/linux/base/log.h"

#include <QPluginLoader>
#include <QThread>

#include <utility>

using namespace Qt::StringLiterals;

namespace quib {

EdsCalendarStore::EdsCalendarStore(const std::shared_ptr<SessionBus>& bus)
    : EdsCalendarStore(bus, companion(u"quib-eds.so"_s))
{
}

EdsCalendarStore::EdsCalendarStore(const std::shared_ptr<SessionBus>& bus, QString plugin)
    : m_bus(bus)
    , m_permission(bus)
    , m_plugin(std::move(plugin))
{
    connect(m_bus.get(), &SessionBus::connected, this, &CalendarStore::changed);
}

EdsCalendarStore::~EdsCalendarStore() = default;

void EdsCalendarStore::readAuthorization(AuthorizationAnswer answer)
{
    m_permission.read([this, answer = std::move(answer)](CalendarAuthorization authorization) {
        if (!m_wasAnswered) {
            m_isGranted = authorization == CalendarAuthorization::FullAccess;
        }
        answer(authorization);
    });
}

void EdsCalendarStore::requestFullAccess(AccessAnswer answer)
{
    m_permission.ask([this, answer = std::move(answer)](bool isGranted) {
        m_wasAnswered = true;
        m_isGranted = isGranted;
        if (!isGranted) {
            close();
        }
        answer(isGranted);
    });
}

void EdsCalendarStore::readEntries(const QDateTime& from, const QDateTime& to, EntriesAnswer answer)
{
    // Without a bus the service's library would start a stray one.
    if (m_state == State::Closed && m_isGranted && m_bus->isConnected()) {
        open();
    }
    const Question question{.from = from, .to = to, .answer = std::move(answer)};
    if (m_state == State::Opening) {
        m_waiting.push_back(question);
    } else {
        ask(question);
    }
}

void EdsCalendarStore::open()
{
    m_state = State::Opening;
    // Its libraries may come from a slow disk. Nobody waits for the thread at the end.
    auto* thread = QThread::create([plugin = m_plugin] { QPluginLoader(plugin).load(); });
    connect(thread, &QThread::finished, this, &EdsCalendarStore::takePlugin);
    connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    thread->start();
}

void EdsCalendarStore::takePlugin()
{
    auto* plugin = qobject_cast<EdsPlugin*>(QPluginLoader(m_plugin).instance());
    m_state = plugin == nullptr ? State::Missing : State::Closed;
    qCDebug(calendarLog) << "the module" << (plugin == nullptr ? "is missing" : "is loaded");
    if (plugin != nullptr && m_isGranted) {
        m_state = State::Open;
        m_calendars = plugin->open([this] {
            QMetaObject::invokeMethod(this, &CalendarStore::changed, Qt::QueuedConnection);
        });
    }
    for (const auto& question : std::exchange(m_waiting, {})) {
        ask(question);
    }
}

void EdsCalendarStore::close()
{
    if (m_calendars) {
        m_calendars->leave();
        m_calendars.reset();
        m_state = State::Closed;
    }
}

void EdsCalendarStore::ask(const Question& question)
{
    const auto tell = [this, answer = question.answer](const QList<CalendarEntry>& entries) {
        qCDebug(calendarLog) << entries.size() << "entries";
        QMetaObject::invokeMethod(
            this, [answer, entries] { answer(entries); }, Qt::QueuedConnection);
    };
    if (m_calendars && m_isGranted) {
        m_calendars->read(question.from, question.to, tell);
    } else {
        tell({});
    }
}

} // namespace quib
