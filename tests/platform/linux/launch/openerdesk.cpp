#include "platform/linux/launch/openerdesk.h"

#include "support/sendsignal.h"
#include "support/writefile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <csignal>

using namespace Qt::StringLiterals;

namespace {

constexpr int LongEnoughMs = 10'000;

QStringList textsOf(const QJsonArray& array)
{
    QStringList texts;
    for (const auto& value : array) {
        texts << value.toString();
    }
    return texts;
}

} // namespace

OpenerDesk::OpenerDesk()
    : environment(QProcessEnvironment::systemEnvironment())
{
    environment.remove(u"DBUS_SESSION_BUS_ADDRESS"_s);
    environment.remove(u"DISPLAY"_s);
    environment.insert(u"HOME"_s, path(u"home"_s));
    environment.insert(u"XDG_DATA_HOME"_s, path(u"data"_s));
    environment.insert(u"XDG_DATA_DIRS"_s, path(u"system"_s));
    environment.insert(u"XDG_CONFIG_HOME"_s, path(u"config"_s));
    environment.insert(u"XDG_CONFIG_DIRS"_s, path(u"etc"_s));
    environment.insert(u"XDG_RUNTIME_DIR"_s, makeFolder(u"run"_s));
    environment.insert(u"QUIB_RECORDS"_s, makeFolder(u"records"_s));
    makeFile(u"data/mime/globs2"_s,
             "50:application/json:*.json\n50:image/png:*.png\n50:text/plain:*.txt\n");
    makeFile(u"data/mime/subclasses"_s, "application/json text/plain\n");
}

OpenerDesk::~OpenerDesk()
{
    const auto all = records();
    for (const auto& record : all) {
        if (environment.contains(u"QUIB_STAYS"_s)) {
            sendSignal(record.value(u"pid"_s).toInt(), SIGKILL);
        }
    }
    kill();
    killBus();
}

QString OpenerDesk::makeFile(const QString& name, const QByteArray& bytes) const
{
    return writeFile(path(name), bytes);
}

QString OpenerDesk::makeFolder(const QString& name) const
{
    QDir().mkpath(path(name));
    return path(name);
}

QString OpenerDesk::install(const QString& name, const QString& command, const QString& lines) const
{
    const auto entry = u"[Desktop Entry]\nType=Application\nName=%1\nExec=\"%2\" %1 %3\n%4\n"_s.arg(
        name, QStringLiteral(RECORD_PROGRAM), command, lines);
    return makeFile(u"data/applications/%1.desktop"_s.arg(name), entry.toUtf8());
}

void OpenerDesk::setDefaults(const QString& lines) const
{
    auto entries = u"[Default Applications]\n"_s;
    for (const auto& line : lines.split(u'\n')) {
        entries += line + u".desktop\n"_s;
    }
    makeFile(u"config/mimeapps.list"_s, entries.toUtf8());
}

void OpenerDesk::startBus()
{
    m_bus.setProcessEnvironment(environment);
    m_bus.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
    m_bus.waitForReadyRead(LongEnoughMs);
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s,
                       QString::fromUtf8(m_bus.readLine()).trimmed());
}

void OpenerDesk::killBus()
{
    m_bus.kill();
    m_bus.waitForFinished(LongEnoughMs);
}

std::unique_ptr<QProcess> OpenerDesk::startService(const QString& name,
                                                   const QStringList& more) const
{
    auto service = std::make_unique<QProcess>();
    service->setProcessEnvironment(environment);
    service->start(QStringLiteral(SERVICE_PROGRAM), QStringList(name) + more);
    service->waitForReadyRead(LongEnoughMs);
    service->readAll();
    return service;
}

void OpenerDesk::start()
{
    // Which applications say that they open what, as packages have it listed when they install one.
    QProcess::execute(u"update-desktop-database"_s, {u"-q"_s, makeFolder(u"data/applications"_s)});
    m_opener.setProcessEnvironment(environment);
    m_opener.start(QStringLiteral(OPENER_PROGRAM), {});
}

void OpenerDesk::tell(const QStringList& command)
{
    m_opener.write(QJsonDocument(QJsonArray::fromStringList(command)).toJson(QJsonDocument::Compact)
                   + '\n');
}

bool OpenerDesk::ask(const QStringList& command)
{
    return answer(command) == u"done"_s;
}

QString OpenerDesk::answer(const QStringList& command)
{
    tell(command);
    m_opener.waitForReadyRead(LongEnoughMs);
    return QString::fromUtf8(m_opener.readLine()).trimmed();
}

bool OpenerDesk::quit()
{
    m_opener.write("[\"quit\"]\n");
    return m_opener.waitForFinished(LongEnoughMs) && m_opener.exitStatus() == QProcess::NormalExit
        && m_opener.exitCode() == 0;
}

void OpenerDesk::kill()
{
    m_opener.kill();
    m_opener.waitForFinished(LongEnoughMs);
}

QByteArray OpenerDesk::complaints()
{
    return m_opener.readAllStandardError();
}

QList<QJsonObject> OpenerDesk::records() const
{
    QList<QJsonObject> list;
    const auto files = QDir(path(u"records"_s)).entryInfoList({u"*.json"_s}, QDir::Files);
    for (const auto& info : files) {
        QFile file(info.filePath());
        if (file.open(QIODevice::ReadOnly)) {
            list << QJsonDocument::fromJson(file.readAll()).object();
        }
    }
    return list;
}

Started OpenerDesk::started() const
{
    Started list;
    for (const auto& record : records()) {
        list << textsOf(record.value(u"arguments"_s).toArray());
    }
    std::ranges::sort(list);
    return list;
}
