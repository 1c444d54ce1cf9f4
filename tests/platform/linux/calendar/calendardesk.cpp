#include "platform/linux/calendar/calendardesk.h"

#include "support/sendsignal.h"
#include "support/writefile.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusReply>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

#include <algorithm>
#include <csignal>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int LongEnoughMs = 20'000;

const auto Connection = u"calendardesk"_s;

QByteArray busConfiguration(const QString& socket, const QString& services, int patience)
{
    return u"<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\" "
           "\"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">"
           "<busconfig><type>session</type><listen>unix:path=%3</listen>"
           "<servicedir>%1</servicedir><policy context=\"default\">"
           "<allow send_destination=\"*\" eavesdrop=\"true\"/><allow eavesdrop=\"true\"/>"
           "<allow own=\"*\"/></policy><limit name=\"service_start_timeout\">%2</limit>"
           "</busconfig>"_s.arg(services)
               .arg(patience)
               .arg(socket)
               .toUtf8();
}

} // namespace

const QString CalendarDesk::Registry = u"org.gnome.evolution.dataserver.Sources5"_s;
const QString CalendarDesk::Factory = u"org.gnome.evolution.dataserver.Calendar8"_s;
const QStringList CalendarDesk::Processes{Factory, u"org.gnome.evolution.dataserver.Subprocess"_s};
const QString CalendarDesk::PermissionStore = u"org.freedesktop.impl.portal.PermissionStore"_s;

CalendarDesk::CalendarDesk()
    : environment(QProcessEnvironment::systemEnvironment())
{
    for (const auto& name :
         {u"DBUS_SESSION_BUS_ADDRESS"_s, u"DISPLAY"_s, u"XDG_CURRENT_DESKTOP"_s}) {
        environment.remove(name);
    }
    environment.insert(u"HOME"_s, path(u"home"_s));
    environment.insert(u"XDG_DATA_HOME"_s, path(u"data"_s));
    environment.insert(u"XDG_CONFIG_HOME"_s, path(u"config"_s));
    environment.insert(u"XDG_CACHE_HOME"_s, path(u"cache"_s));
    environment.insert(u"XDG_RUNTIME_DIR"_s, path(u"run"_s));
    environment.insert(u"GSETTINGS_BACKEND"_s, u"memory"_s);
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    QDir().mkpath(path(u"run"_s));
    QObject::connect(&m_program, &QProcess::readyReadStandardOutput, &m_program,
                     [this] { collect(); });
}

CalendarDesk::~CalendarDesk()
{
    for (const auto pid : m_signalled) {
        sendSignal(pid, SIGCONT);
    }
    m_program.kill();
    m_program.waitForFinished();
    killBus();
}

void CalendarDesk::makeCalendar(const QString& id, const QByteArray& events,
                                const QByteArray& color) const
{
    writeFile(path(u"config/evolution/sources/%1.source"_s.arg(id)),
              "[Data Source]\nDisplayName=" + id.toUtf8()
                  + "\nEnabled=true\nParent=local-stub\n\n[Calendar]\nBackendName=local\nColor="
                  + color + "\nSelected=true\n");
    writeFile(path(u"data/evolution/calendar/%1/calendar.ics"_s.arg(id)), calendarOf(events));
}

void CalendarDesk::makeHungCalendar(const QString& id) const
{
    makeCalendar(id, {});
    const auto file = path(u"data/evolution/calendar/%1/calendar.ics"_s.arg(id));
    QFile::remove(file);
    QVERIFY(::mkfifo(QFile::encodeName(file).constData(), S_IRUSR | S_IWUSR) == 0);
}

void CalendarDesk::endHanging(const QString& id, const QByteArray& events) const
{
    writeFile(path(u"data/evolution/calendar/%1/calendar.ics"_s.arg(id)), calendarOf(events));
}

QByteArray CalendarDesk::calendarOf(const QByteArray& events)
{
    return "BEGIN:VCALENDAR\nVERSION:2.0\nPRODID:-//Quib//tests//EN\nBEGIN:VTIMEZONE\n"
           "TZID:Own Zone\nBEGIN:STANDARD\nDTSTART:16010101T000000\nTZOFFSETFROM:+0300\n"
           "TZOFFSETTO:+0300\nEND:STANDARD\nEND:VTIMEZONE\n"
        + events + "END:VCALENDAR\n";
}

void CalendarDesk::makeServiceThatNeverComes(const QString& name) const
{
    writeFile(path(u"services/%1.service"_s.arg(name)),
              "[D-BUS Service]\nName=" + name.toUtf8() + "\nExec=/bin/sleep 60\n");
}

void CalendarDesk::startBus(const QStringList& services, int startingMs)
{
    QDir().mkpath(path(u"services"_s));
    for (const auto& service : services) {
        QFile::link(u"/usr/share/dbus-1/services/%1.service"_s.arg(service),
                    path(u"services/%1.service"_s.arg(service)));
    }
    writeFile(path(u"bus.conf"_s),
              busConfiguration(path(u"socket"_s), path(u"services"_s), startingMs));
    m_bus.setProcessEnvironment(environment);
    m_bus.setStandardErrorFile(QProcess::nullDevice());
    m_bus.start(u"dbus-daemon"_s,
                {u"--config-file"_s, path(u"bus.conf"_s), u"--nofork"_s, u"--print-address"_s});
    m_bus.waitForReadyRead(LongEnoughMs);
    const auto address = QString::fromUtf8(m_bus.readLine()).trimmed();
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, address);
    QDBusConnection::connectToBus(address, Connection);
}

void CalendarDesk::killBus()
{
    QDBusConnection::disconnectFromBus(Connection);
    m_bus.kill();
    m_bus.waitForFinished();
}

QDBusConnection CalendarDesk::bus() const
{
    return QDBusConnection(Connection);
}

bool CalendarDesk::owns(const QString& name) const
{
    return bus().interface()->isServiceRegistered(name);
}

void CalendarDesk::startService(const QString& name) const
{
    bus().interface()->startService(name);
}

void CalendarDesk::setPermission(const QString& word) const
{
    auto message = QDBusMessage::createMethodCall(PermissionStore,
                                                  u"/org/freedesktop/impl/portal/PermissionStore"_s,
                                                  PermissionStore, u"SetPermission"_s);
    message << u"calendar"_s << true << u"events"_s << u"org.korvel.Quib"_s << QStringList(word);
    bus().call(message);
}

void CalendarDesk::signalTo(const QStringList& prefixes, int signal)
{
    const QStringList names = bus().interface()->registeredServiceNames();
    for (const auto& name : names) {
        if (std::ranges::any_of(prefixes,
                                [&](const auto& start) { return name.startsWith(start); })) {
            const uint pid = bus().interface()->servicePid(name);
            sendSignal(pid, signal);
            m_signalled << pid;
        }
    }
}

void CalendarDesk::startGranted(const QString& plugin)
{
    start(plugin);
    answerTo({u"request"_s});
}

void CalendarDesk::start(const QString& plugin)
{
    m_program.setProcessEnvironment(environment);
    m_program.start(QStringLiteral(CALENDAR_PROGRAM),
                    {plugin.isEmpty() ? QStringLiteral(EDS_PLUGIN) : plugin});
}

void CalendarDesk::send(const QStringList& command)
{
    m_program.write(
        QJsonDocument(QJsonArray::fromStringList(command)).toJson(QJsonDocument::Compact) + '\n');
}

QString CalendarDesk::answerTo(const QStringList& command)
{
    send(command);
    return awaited(command.first());
}

QString CalendarDesk::awaited(const QString& word)
{
    if (!QTest::qWaitFor([&] { return hasAnswer(word); }, LongEnoughMs)) {
        return {};
    }
    const auto answer = std::ranges::find_if(
        m_answers, [&word](const QString& line) { return line.startsWith(word + u' '); });
    auto text = answer->mid(word.size() + 1);
    m_answers.erase(answer);
    return text;
}

bool CalendarDesk::hasAnswer(const QString& word)
{
    collect();
    return std::ranges::any_of(std::as_const(m_answers), [&word](const QString& line) {
        return line.startsWith(word + u' ');
    });
}

QStringList CalendarDesk::read(const QDate& day)
{
    return shownIn(answerTo({u"read"_s, day.toString(Qt::ISODate)}));
}

QStringList CalendarDesk::shownIn(const QString& answer)
{
    QStringList shown;
    const auto entries = QJsonDocument::fromJson(answer.toUtf8()).array();
    for (const auto& entry : entries) {
        shown << entry[u"shown"_s].toString();
    }
    std::ranges::sort(shown);
    return shown;
}

int CalendarDesk::changes()
{
    collect();
    return m_changes;
}

bool CalendarDesk::hasLoaded(const QString& library) const
{
    QFile maps(u"/proc/%1/maps"_s.arg(m_program.processId()));
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(library.toUtf8());
}

int CalendarDesk::connections() const
{
    const QStringList names = bus().interface()->registeredServiceNames();
    return int(std::ranges::count_if(names, [this](const QString& name) {
        return name.startsWith(u':')
            && qint64(bus().interface()->servicePid(name)) == m_program.processId();
    }));
}

int CalendarDesk::threads() const
{
    return int(QDir(u"/proc/%1/task"_s.arg(m_program.processId()))
                   .entryList(QDir::Dirs | QDir::NoDotAndDotDot)
                   .size());
}

bool CalendarDesk::quit()
{
    send({u"quit"_s});
    return m_program.waitForFinished(LongEnoughMs) && m_program.exitStatus() == QProcess::NormalExit
        && m_program.exitCode() == 0;
}

bool CalendarDesk::write(const QStringList& command) const
{
    QProcess writer;
    writer.setProcessEnvironment(environment);
    writer.start(QStringLiteral(CALENDAR_WRITER), command);
    return writer.waitForFinished(LongEnoughMs) && writer.exitStatus() == QProcess::NormalExit
        && writer.exitCode() == 0;
}

void CalendarDesk::collect()
{
    while (m_program.canReadLine()) {
        const auto line = QString::fromUtf8(m_program.readLine()).trimmed();
        if (line == u"changed"_s) {
            ++m_changes;
        } else {
            m_answers << line;
        }
    }
}
