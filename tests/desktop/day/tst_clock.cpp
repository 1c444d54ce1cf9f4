#include "desktop/desk/desk.h"
#include "desktop/desk/deskconnection.h"
#include "support/writefile.h"

#include <QDateTime>
#include <QJsonArray>
#include <QTest>
#include <QTimeZone>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int TimeTab = 4;
constexpr QPoint StopButton{506, 156};
constexpr QRect Date{960, 8, 125, 30}; ///< In the top bar.
constexpr QRect Totals{880, 60, 260, 220}; ///< On the time tab.

constexpr int SecondsOfADate = 45; ///< 30, and some for a busy machine.
constexpr int SecondsOfTotals = 30; ///< 15, and some.

constexpr auto RunningEntry = R"({"clients": [], "tasks": [], "shelf": [], "launch": [],
    "notes": "", "entries": [{"id": "6F1C0000-0000-4000-8000-000000000002", "note": "",
    "start": "%1"}]})";

/// A desk whose clock the test turns while Quib runs.
class ClockDesk : public Desk {
public:
    ClockDesk()
    {
        turn(0);
        setVariable(u"FAKETIME_TIMESTAMP_FILE"_s, folder(u"clock"_s));
        setVariable(u"FAKETIME_NO_CACHE"_s, u"1"_s);
        setVariable(u"FAKETIME_DONT_FAKE_MONOTONIC"_s, u"1"_s);
        setVariable(u"NO_FAKE_STAT"_s, u"1"_s);
        setVariable(u"TZ"_s, u"UTC"_s);
        setVariable(u"ASAN_OPTIONS"_s, u"verify_asan_link_order=0:detect_leaks=0"_s);
    }

    Program startQuibByThatClock()
    {
        setVariable(u"LD_PRELOAD"_s, u"/usr/$LIB/faketime/libfaketimeMT.so.1"_s);
        auto quib = startQuib();
        setVariable(u"LD_PRELOAD"_s, {});
        return quib;
    }

    /// To so many seconds from now.
    void turn(qint64 seconds)
    {
        m_ahead = seconds;
        writeFile(folder(u"clock"_s), (seconds < 0 ? "" : "+") + QByteArray::number(seconds));
    }

    QDateTime now() const { return QDateTime::currentDateTimeUtc().addSecs(m_ahead); }

    void turnToJustBeforeMidnight()
    {
        const auto now = QDateTime::currentDateTimeUtc();
        turn(now.secsTo(now.date().addDays(1).startOfDay(QTimeZone::utc())) - 5);
    }

    void startRunningSince(const QDateTime& start) const
    {
        writeData(QString::fromLatin1(RunningEntry).arg(start.toString(Qt::ISODate)).toLatin1());
    }

    void open(int tab) const
    {
        openWithPointer();
        click(Pin);
        showTab(tab);
        moveTo({800, 600});
    }

private:
    qint64 m_ahead = 0;
};

/// Once it rests: what fades in has come.
QImage settled(const Desk& desk, const QRect& where)
{
    QImage last;
    waitFor("a picture at rest", [&] {
        const auto before = std::exchange(last, desk.picture().copy(where));
        return last == before;
    });
    return last;
}

} // namespace

/// The system's clock is turned, and passes midnight, under the open panel.
class ClockTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void midnight_theDateFollows();
    void turnedForward_theTotalsFollow();
    void turnedForward_theTimerRecordsTheWallClock();
    void turnedBack_thePanelAndTheTimerLiveOn();
};

void ClockTest::midnight_theDateFollows()
{
    ClockDesk desk;
    desk.turnToJustBeforeMidnight();
    const auto quib = desk.startQuibByThatClock();
    desk.turnToJustBeforeMidnight();
    desk.open(TimeTab);
    desk.turnToJustBeforeMidnight();
    const auto before = settled(desk, Date);

    QTRY_VERIFY_WITH_TIMEOUT(desk.picture().copy(Date) != before, SecondsOfADate * 1000);
}

void ClockTest::turnedForward_theTotalsFollow()
{
    ClockDesk desk;
    desk.startRunningSince(desk.now().addSecs(-60));
    const auto quib = desk.startQuibByThatClock();
    desk.open(TimeTab);
    const auto before = settled(desk, Totals);

    desk.turn(3 * 3600);

    QTRY_VERIFY_WITH_TIMEOUT(desk.picture().copy(Totals) != before, SecondsOfTotals * 1000);
}

void ClockTest::turnedForward_theTimerRecordsTheWallClock()
{
    ClockDesk desk;
    const auto start = desk.now().addSecs(-60);
    desk.startRunningSince(start);
    const auto quib = desk.startQuibByThatClock();
    desk.turn(3 * 3600);
    desk.open(TimeTab);

    const auto before = desk.now();
    desk.click(StopButton);

    const auto end = [&desk] {
        const auto entry = desk.data().value("entries"_L1).toArray().at(0).toObject();
        return QDateTime::fromString(entry.value("end"_L1).toString(), Qt::ISODate);
    };
    QTRY_VERIFY(end().isValid());
    QVERIFY(end() >= before.addSecs(-2) && end() <= desk.now());
}

void ClockTest::turnedBack_thePanelAndTheTimerLiveOn()
{
    ClockDesk desk;
    desk.startRunningSince(desk.now().addSecs(-7200));
    const auto quib = desk.startQuibByThatClock();
    desk.open(TimeTab);
    const auto before = settled(desk, Totals);

    desk.turn(-3600);

    QTRY_VERIFY_WITH_TIMEOUT(desk.picture().copy(Totals) != before, SecondsOfTotals * 1000);
    desk.showTab(3);
    QCOMPARE(quib->state(), QProcess::Running);
}

QTEST_GUILESS_MAIN(ClockTest)
#include "tst_clock.moc"
