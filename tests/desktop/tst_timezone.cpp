#include "desk.h"
#include "partners.h"
#include "reader.h"
#include "support/writefile.h"

#include <QDateTime>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>
#include <QTest>
#include <QTimeZone>

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <functional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto East = "Pacific/Kiritimati"; ///< 14 hours ahead.
constexpr auto West = "Pacific/Niue"; ///< 11 behind: never on the same day.

constexpr int TasksTab = 3;
constexpr int TimeTab = 4;
constexpr int NotesTab = 6;
constexpr auto Soon = 15s;
constexpr auto WithinTotals = 30s; ///< 15, and some for a busy machine.
constexpr auto WithinADate = 45s; ///< 30, and some.

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

/// Asking a panel takes long itself.
bool comesTrue(const std::function<bool()>& claim, std::chrono::milliseconds within = Soon)
{
    return QTest::qWaitFor(claim, int(within.count()));
}

/// How the program says, in English, that day in that zone.
QString dayThere(const QString& format, const char* zone)
{
    const auto there = QDateTime::currentDateTimeUtc().toTimeZone(QTimeZone(zone));
    return QLocale(u"en_US"_s).toString(there.date(), format);
}

QString dateThere(const char* zone)
{
    return dayThere(u"ddd, MMM d"_s, zone);
}

/// The first moment of this week.
QDateTime sundayThere(const char* zone)
{
    const auto today = QDateTime::currentDateTimeUtc().toTimeZone(QTimeZone(zone)).date();
    return today.addDays(-(today.dayOfWeek() % 7)).startOfDay(QTimeZone(zone));
}

/// A desk whose Quib has settings of the system of its own, which the test changes meanwhile.
class TravelDesk : public Desk {
public:
    Reader reader{*this};

    TravelDesk()
    {
        start(u"cp"_s, {u"-a"_s, u"/etc"_s, folder(u"etc"_s)})->waitForFinished();
        travel(East);
    }

    /// Why programs can have no settings of their own here; empty where they can.
    QString hindrance()
    {
        auto command = elsewhere() << u"true"_s;
        const auto first = command.takeFirst();
        const auto tool = start(first, command);
        tool->waitForFinished();
        return tool->exitCode() == 0 ? QString()
                                     : QString::fromLocal8Bit(tool->readAllStandardError());
    }

    Program startQuibElsewhere()
    {
        auto quib = startQuib(elsewhere());
        openWithPointer();
        click(Pin);
        return quib;
    }

    void travel(const QString& zone) const
    {
        std::error_code error;
        const auto link = setting(u"localtime"_s);
        const auto next = link + u".new"_s;
        QFile::remove(next);
        QFile::link(u"/usr/share/zoneinfo/"_s + zone, next);
        std::filesystem::rename(next.toStdString(), link.toStdString(), error);
    }
    void travel(const char* zone) const { travel(QString::fromLatin1(zone)); }

    void loseLink() const { QFile::remove(setting(u"localtime"_s)); }
    QString setting(const QString& name) const { return folder(u"etc/"_s) + name; }

    bool shows(const QString& text) { return reader.panel().find(u"label"_s, text) != nullptr; }
    bool showsTotal(const char* zone) { return shows(totalSince(sundayThere(zone))); }

    /// Once it is there.
    void press(const QString& button)
    {
        Told panel;
        const auto isThere
            = [&] { return (panel = reader.panel()).find(u"push button"_s, button) != nullptr; };
        if (comesTrue(isThere)) {
            reader.press(*panel.find(u"push button"_s, button));
        }
    }

private:
    /// The headline of the totals.
    QString totalSince(const QDateTime& since) const
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

    /// Words before a program's name that give it our settings for the system's. Without being
    /// root it takes two steps: mounting needs to be one, the session bus the user's own number.
    static QStringList asMe()
    {
        return {u"unshare"_s, u"--map-user=%1"_s.arg(geteuid()),
                u"--map-group=%1"_s.arg(getegid())};
    }

    QStringList elsewhere() const
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
};

} // namespace

/// The user travels: the system's time zone is changed under the running program.
class TimeZoneTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_desk.reset(); }

    void theDateAndTheTotals_follow();
    void linkMissingForAWhile_theTotalsFollow();
    void theTimer_goesOn();
    void theTimesheetAndTheNotes_follow();
    void events_areWhenTheyAreThere();

private:
    std::unique_ptr<TravelDesk> m_desk;
};

void TimeZoneTest::init()
{
    m_desk = std::make_unique<TravelDesk>();
    if (const auto hindrance = m_desk->hindrance(); !hindrance.isEmpty()) {
        QSKIP(qPrintable(u"no program can have an /etc of its own here: "_s + hindrance));
    }
    m_desk->writeData(workspace(QDateTime::currentDateTimeUtc()));
}

void TimeZoneTest::theDateAndTheTotals_follow()
{
    const auto quib = m_desk->startQuibElsewhere();
    m_desk->showTab(TimeTab);
    const auto showsDate = [this](const char* zone) { return m_desk->shows(dateThere(zone)); };
    const auto showsTotal = [this](const char* zone) { return m_desk->showsTotal(zone); };
    QVERIFY(comesTrue([&] { return showsDate(East) && showsTotal(East); }));

    m_desk->travel(West);

    QVERIFY(comesTrue([&] { return showsTotal(West); }, WithinTotals));
    QVERIFY(comesTrue([&] { return showsDate(West); }, WithinADate));
}

void TimeZoneTest::linkMissingForAWhile_theTotalsFollow()
{
    writeFile(m_desk->setting(u"timezone"_s), QByteArray(West) + '\n');
    const auto quib = m_desk->startQuibElsewhere();
    const auto showsAnew = [this](const char* zone) {
        m_desk->showTab(TasksTab);
        m_desk->showTab(TimeTab);
        return m_desk->showsTotal(zone);
    };
    QVERIFY(comesTrue([&] { return showsAnew(East); }));
    m_desk->loseLink();
    QVERIFY(comesTrue([&] { return showsAnew(West); })); // What the other file says.

    m_desk->travel(East);

    QVERIFY(comesTrue([&] { return showsAnew(East); }));
}

void TimeZoneTest::theTimer_goesOn()
{
    const auto quib = m_desk->startQuibElsewhere();
    m_desk->showTab(TimeTab);
    m_desk->press(u"Start"_s);
    const auto elapsed = [this] { // "0:02"
        const auto panel = m_desk->reader.panel();
        for (const auto* text : panel.shown()) {
            if (text->role == "label"_L1 && text->name.indexOf(u':') == 1) {
                return text->name;
            }
        }
        return QString();
    };
    QVERIFY(comesTrue([&] { return elapsed() > u"0:01"_s; }));
    const auto before = elapsed();

    m_desk->travel(West);

    QVERIFY(comesTrue([&] { return elapsed() > before; }));
}

void TimeZoneTest::theTimesheetAndTheNotes_follow()
{
    QVERIFY(QDir().mkpath(m_desk->folder(u"Downloads"_s)));
    const auto quib = m_desk->startQuibElsewhere();
    const auto stampAndExport = [this] {
        m_desk->showTab(NotesTab);
        m_desk->press(u"Insert timestamp"_s);
        m_desk->showTab(TimeTab);
        m_desk->press(u"Export timesheet CSV to Downloads"_s);
    };
    const auto isStamped = [this](const char* zone) {
        const auto notes = m_desk->data().value("notes"_L1).toString();
        return notes.contains(dayThere(u"MMM d, yyyy 'at'"_s, zone));
    };
    const auto isExported = [this](const char* zone) {
        const auto day = dayThere(u"yyyy-MM-dd"_s, zone);
        return QFile::exists(m_desk->folder(u"Downloads/Korvel-timesheet-%1.csv"_s.arg(day)));
    };
    stampAndExport();
    QVERIFY(comesTrue([&] { return isStamped(East) && isExported(East); }));

    m_desk->travel(West);
    stampAndExport();

    QVERIFY(comesTrue([&] { return isStamped(West) && isExported(West); }));
}

void TimeZoneTest::events_areWhenTheyAreThere()
{
    const auto start = QDateTime::currentDateTimeUtc().addSecs(-3600);
    makeCalendarWith(*m_desk, {.title = u"Call"_s, .start = start, .end = start.addSecs(10'800)});
    const auto isTold = [&](const char* zone) {
        const auto there = start.toTimeZone(QTimeZone(zone)).time();
        const auto time = QLocale(u"en_US"_s).toString(there, u"h:mm\u202FAP"_s);
        return m_desk->reader.panel().find(u"list item"_s, u"Call, "_s + time) != nullptr;
    };
    const auto quib = m_desk->startQuibElsewhere();
    m_desk->press(u"Connect Calendar"_s);
    QVERIFY(comesTrue([&] { return isTold(East); }, 30s));

    m_desk->travel(West);

    QVERIFY(comesTrue([&] { return isTold(West); }));
    m_desk->click(Desk::Pin);
    m_desk->moveTo(Desk::FarAway);
    m_desk->waitForExpanded(false);
    m_desk->openWithPointer();
    QVERIFY(comesTrue([&] { return isTold(West); }));
}

QTEST_GUILESS_MAIN(TimeZoneTest)
#include "tst_timezone.moc"
