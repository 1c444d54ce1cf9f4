#include "desktop/desk/partners.h"
#include "desktop/desk/traveldesk.h"
#include "support/writefile.h"

#include <QDateTime>
#include <QDir>
#include <QLocale>
#include <QTest>
#include <QTimeZone>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto East = "Pacific/Kiritimati"; ///< 14 hours ahead.
constexpr auto West = "Pacific/Niue"; ///< 11 behind: never on the same day.

constexpr int TasksTab = 3;
constexpr int TimeTab = 4;
constexpr int NotesTab = 6;
constexpr auto WithinTotals = 30s; ///< 15, and some for a busy machine.
constexpr auto WithinADate = 45s; ///< 30, and some.

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
    m_desk = std::make_unique<TravelDesk>(East);
    // Mounting needs to be root or to become it, and an own root to mount in: not so in some
    // containers.
    if (const auto hindrance = m_desk->hindrance(); !hindrance.isEmpty()) {
        QSKIP(qPrintable(u"no program can have an /etc of its own here: "_s + hindrance));
    }
}

void TimeZoneTest::theDateAndTheTotals_follow()
{
    const auto quib = m_desk->startQuibElsewhere();
    m_desk->showTab(TimeTab);
    const auto showsDate = [this](const char* zone) { return m_desk->shows(dateThere(zone)); };
    const auto showsTotal
        = [this](const char* zone) { return m_desk->showsTotalSince(sundayThere(zone)); };
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
        return m_desk->showsTotalSince(sundayThere(zone));
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
