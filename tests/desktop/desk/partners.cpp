#include "desktop/desk/partners.h"

#include "support/soundfile.h"
#include "support/writefile.h"

#include <QDate>
#include <QJsonArray>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

Program startPlayer(Desk& desk)
{
    const auto song = desk.folder(u"song.wav"_s);
    writeSound(song, "So What", "Miles Davis");
    return desk.start(u"mpv"_s,
                      {u"--no-config"_s, u"--ao=null"_s, u"--no-video"_s, u"--really-quiet"_s,
                       u"--script=/usr/lib/mpv-mpris/mpris.so"_s, song});
}

QString playbackOf(Desk& desk)
{
    const auto asker = desk.start(
        u"dbus-send"_s,
        {u"--session"_s, u"--print-reply=literal"_s, u"--dest=org.mpris.MediaPlayer2.mpv"_s,
         u"/org/mpris/MediaPlayer2"_s, u"org.freedesktop.DBus.Properties.Get"_s,
         u"string:org.mpris.MediaPlayer2.Player"_s, u"string:PlaybackStatus"_s});
    asker->waitForFinished();
    return QString::fromLatin1(asker->readAllStandardOutput()).simplified().section(u' ', -1);
}

namespace {

QByteArray event(const QString& title, const QByteArray& times)
{
    return "BEGIN:VEVENT\nUID:" + title.toUtf8()
        + "\nDTSTAMP:20200101T000000Z\nSUMMARY:" + title.toUtf8() + '\n' + times + "END:VEVENT\n";
}

void makeCalendarOf(const Desk& desk, const QByteArray& events)
{
    writeFile(desk.folder(u".config/evolution/sources/work.source"_s),
              "[Data Source]\nDisplayName=Work\nEnabled=true\nParent=local-stub\n\n"
              "[Calendar]\nBackendName=local\nColor=#33d17a\nSelected=true\n");
    writeFile(desk.folder(u".local/share/evolution/calendar/work/calendar.ics"_s),
              "BEGIN:VCALENDAR\nVERSION:2.0\nPRODID:-//Quib//tests//EN\n" + events
                  + "END:VCALENDAR\n");
}

} // namespace

void makeCalendar(const Desk& desk, const QStringList& titles)
{
    const auto today = QDate::currentDate().toString(u"yyyyMMdd"_s).toLatin1();
    QByteArray events;
    for (const auto& title : titles) {
        events += event(title, "DTSTART;VALUE=DATE:" + today + '\n');
    }
    makeCalendarOf(desk, events);
}

void makeCalendarWith(const Desk& desk, const Meeting& meeting)
{
    const auto moment = [](const QDateTime& time) {
        return time.toUTC().toString(u"yyyyMMdd'T'HHmmss'Z'"_s).toLatin1();
    };
    makeCalendarOf(
        desk,
        event(meeting.title,
              "DTSTART:" + moment(meeting.start) + "\nDTEND:" + moment(meeting.end) + '\n'));
}

void hideFileManagers(Desk& desk)
{
    writeFile(desk.folder(u"runtime/dbus-1/services/org.freedesktop.FileManager1.service"_s),
              "[D-BUS Service]\nName=org.freedesktop.FileManager1\nExec=/bin/false\n");
    desk.start(u"dbus-send"_s,
               {u"--session"_s, u"--print-reply"_s, u"--dest=org.freedesktop.DBus"_s,
                u"/org/freedesktop/DBus"_s, u"org.freedesktop.DBus.ReloadConfig"_s})
        ->waitForFinished();
}

QList<QStringList> readStrictly(Desk& desk, const QString& file)
{
    const auto reader
        = desk.start(u"python3"_s,
                     {u"-c"_s,
                      u"import csv, json, sys\n"
                      "rows = list(csv.reader(open(sys.argv[1], newline='', encoding='utf-8'),"
                      " strict=True))\nprint(json.dumps(rows))"_s,
                      file});
    reader->waitForFinished();
    QList<QStringList> rows;
    for (const auto& row : QJsonDocument::fromJson(reader->readAllStandardOutput()).array()) {
        rows << row.toVariant().toStringList();
    }
    return rows;
}
