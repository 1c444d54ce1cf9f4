#include "platform/linux/base/connectedbus.h"
#include "platform/linux/base/sessionbus.h"
#include "platform/linux/calendar/edscalendarstore.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSocketNotifier>
#include <QTextStream>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace quib;

namespace {

void say(const QString& line)
{
    QTextStream(stdout) << line << Qt::endl;
}

QJsonObject describe(const CalendarEntry& entry)
{
    const auto time = u"dd HH:mm"_s;
    const auto shown = u"%1%2 - %3 %4"_s.arg(
        entry.isAllDay ? u"*"_s : QString(), entry.start.toLocalTime().toString(time),
        entry.end.toLocalTime().toString(time), entry.title.value_or(u"(none)"_s));
    return {{u"shown"_s, shown},
            {u"id"_s, entry.id.value_or(QString())},
            {u"color"_s, entry.color ? entry.color->name() : QString()}};
}

/// Carries out commands, each a line with a JSON list of words.
class Commands : public QObject {
public:
    explicit Commands(const QString& plugin)
        : m_store(connectedBus(), plugin)
    {
        connect(&m_store, &CalendarStore::changed, this, [] { say(u"changed"_s); });
        connect(&m_input, &QSocketNotifier::activated, this, &Commands::readInput);
    }

private:
    void readInput()
    {
        char bytes[4096]; // NOLINT(modernize-avoid-c-arrays)
        const auto count = ::read(STDIN_FILENO, bytes, sizeof bytes);
        if (count <= 0) {
            QCoreApplication::exit(1);
            return;
        }
        m_text.append(bytes, qsizetype(count));
        for (auto end = m_text.indexOf('\n'); end >= 0; end = m_text.indexOf('\n')) {
            const auto words = QJsonDocument::fromJson(m_text.first(end)).array();
            m_text = m_text.mid(end + 1);
            run(words[0].toString(), words[1].toString());
        }
    }

    void run(const QString& command, const QString& argument)
    {
        if (command == u"authorization"_s) {
            m_store.readAuthorization(
                [](auto status) { say(u"authorization %1"_s.arg(int(status))); });
        } else if (command == u"request"_s) {
            m_store.requestFullAccess([](bool isGranted) { say(u"request %1"_s.arg(isGranted)); });
        } else if (command == u"read"_s) {
            read(QDate::fromString(argument, Qt::ISODate));
        } else if (command == u"alive"_s) {
            say(u"alive yes"_s);
        } else if (command == u"quit"_s) {
            QCoreApplication::quit();
        }
    }

    void read(const QDate& day)
    {
        m_store.readEntries(day.startOfDay(), day.addDays(1).startOfDay(), [](const auto& entries) {
            QJsonArray list;
            for (const auto& entry : entries) {
                list << describe(entry);
            }
            say(u"read "_s + QString::fromUtf8(QJsonDocument(list).toJson(QJsonDocument::Compact)));
        });
    }

    EdsCalendarStore m_store;
    QSocketNotifier m_input{STDIN_FILENO, QSocketNotifier::Read};
    QByteArray m_text;
};

} // namespace

/// Reads the calendars of the session with the plugin that its argument names.
int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const Commands commands(QCoreApplication::arguments().at(1));
    return QCoreApplication::exec();
}
