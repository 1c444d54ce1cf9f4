#include "desktop/desk/traveldesk.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

#include <unistd.h>

#include <algorithm>
#include <filesystem>

using namespace Qt::StringLiterals;

namespace {

/// An hour on each of the last ten days.
QByteArray workspace(const QDateTime& now)
{
    const auto hoursAgo
        = [&now](int hours) { return now.addSecs(-qint64(3600) * hours).toString(Qt::ISODate); };
    QJsonArray entries;
    for (int day = 0; day < 10; ++day) {
        entries << QJsonObject{{u"id"_s, u"6F1C0000-0000-4000-8000-00000000000%1"_s.arg(day)},
                               {u"note"_s, QString()},
                               {u"start"_s, hoursAgo(24 * day + 2)},
                               {u"end"_s, hoursAgo(24 * day + 1)}};
    }
    QJsonObject data{{u"entries"_s, entries}, {u"notes"_s, QString()}};
    for (const auto* list : {"clients", "tasks", "shelf", "launch"}) {
        data.insert(QLatin1String(list), QJsonArray());
    }
    return QJsonDocument(data).toJson();
}

/// Words before a program's name that make root the user again. Mounting needs root, and the
/// session bus lets in only who started it.
QStringList asMe()
{
    return {u"unshare"_s, u"--map-user=%1"_s.arg(geteuid()), u"--map-group=%1"_s.arg(getegid())};
}

} // namespace

bool comesTrue(const std::function<bool()>& claim, std::chrono::milliseconds within)
{
    return QTest::qWaitFor(claim, int(within.count()));
}

TravelDesk::TravelDesk(const char* zone)
{
    start(u"cp"_s, {u"-a"_s, u"/etc"_s, folder(u"etc"_s)})->waitForFinished();
    travel(zone);
    writeData(workspace(QDateTime::currentDateTimeUtc()));
}

QString TravelDesk::hindrance()
{
    auto command = elsewhere() << u"true"_s;
    const auto first = command.takeFirst();
    const auto tool = start(first, command);
    tool->waitForFinished();
    return tool->exitCode() == 0 ? QString() : QString::fromLocal8Bit(tool->readAllStandardError());
}

Program TravelDesk::startQuibElsewhere()
{
    auto quib = startQuib(elsewhere());
    openWithPointer();
    click(Pin);
    return quib;
}

/// In one step, as tools do.
void TravelDesk::travel(const char* zone) const
{
    std::error_code error;
    const auto link = setting(u"localtime"_s);
    const auto next = link + u".new"_s;
    QFile::remove(next);
    QFile::link(u"/usr/share/zoneinfo/"_s + QLatin1String(zone), next);
    std::filesystem::rename(next.toStdString(), link.toStdString(), error);
}

void TravelDesk::loseLink() const
{
    QFile::remove(setting(u"localtime"_s));
}

QString TravelDesk::setting(const QString& name) const
{
    return folder(u"etc/"_s) + name;
}

bool TravelDesk::shows(const QString& text)
{
    return reader.panel().find(u"label"_s, text) != nullptr;
}

bool TravelDesk::showsTotalSince(const QDateTime& moment)
{
    return shows(totalSince(moment));
}

void TravelDesk::press(const QString& button)
{
    Told panel;
    const auto isThere
        = [&] { return (panel = reader.panel()).find(u"push button"_s, button) != nullptr; };
    if (comesTrue(isThere)) {
        reader.press(*panel.find(u"push button"_s, button));
    }
}

QString TravelDesk::totalSince(const QDateTime& since) const
{
    const auto moment = [](const QJsonObject& entry, const QString& name) {
        return QDateTime::fromString(entry.value(name).toString(), Qt::ISODate);
    };
    qint64 seconds = 0;
    for (const auto value : data().value("entries"_L1).toArray()) {
        const auto entry = value.toObject();
        const auto start = std::max(since, moment(entry, u"start"_s));
        seconds += std::max(start.secsTo(moment(entry, u"end"_s)), qint64(0));
    }
    const auto minutes = u"%1m"_s.arg(seconds / 60 % 60);
    return seconds < 3600 ? minutes : u"%1h "_s.arg(seconds / 3600) + minutes;
}

/// Without being root it takes two steps.
QStringList TravelDesk::elsewhere() const
{
    const bool isRoot = geteuid() == 0;
    QStringList command{u"env"_s, u"-u"_s, u"TZ"_s, u"unshare"_s, u"--mount"_s};
    if (!isRoot) {
        command << u"--map-root-user"_s;
    }
    command << u"sh"_s << u"-c"_s << u"mount --bind \"$0\" /etc && exec \"$@\""_s
            << folder(u"etc"_s);
    return isRoot ? command : command << asMe();
}
