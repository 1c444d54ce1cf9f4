#include "desktop/desk/partners.h"

#include "desktop/desk/places.h"
#include "support/sendsignal.h"

#include <QDateTime>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

const auto Bakery = u"11111111-1111-4111-8111-111111111111"_s;
const auto BakeryName = u"Bäckerei & Sons, London"_s;
constexpr int ClientsTab = 2;
constexpr int TimeTab = 4;

// Where things are in the open card.
constexpr QPoint FirstClient = places::FirstClient;
constexpr QPoint TrackTime{744, 174};
constexpr QPoint Delete = places::DeleteClient;
constexpr QPoint Export = places::Export;
constexpr QPoint LeftWing{630, 3};
constexpr QPoint FirstTotal{1000, 149};

QString ago(qint64 seconds)
{
    return QDateTime::currentDateTimeUtc().addSecs(-seconds).toString(Qt::ISODate);
}

QJsonObject entry(const QString& client, const QString& start, const QString& end,
                  const QString& note = {})
{
    QJsonObject entry{{u"id"_s, QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper()},
                      {u"start"_s, start},
                      {u"note"_s, note}};
    if (!client.isEmpty()) {
        entry.insert(u"clientID"_s, client);
    }
    if (!end.isEmpty()) {
        entry.insert(u"end"_s, end);
    }
    return entry;
}

QByteArray workspace(const QJsonArray& entries)
{
    const QJsonObject client{
        {u"id"_s, Bakery},         {u"name"_s, BakeryName},      {u"status"_s, u"live"_s},
        {u"siteURL"_s, QString()}, {u"folderPath"_s, QString()}, {u"hourlyRate"_s, 40},
        {u"notes"_s, QString()}};
    return QJsonDocument(QJsonObject{{u"clients"_s, QJsonArray{client}},
                                     {u"tasks"_s, QJsonArray()},
                                     {u"entries"_s, entries},
                                     {u"shelf"_s, QJsonArray()},
                                     {u"launch"_s, QJsonArray()},
                                     {u"notes"_s, QString()}})
        .toJson();
}

QJsonArray savedEntries(const Desk& desk)
{
    return desk.data().value("entries"_L1).toArray();
}

bool isReddish(const QColor& color)
{
    return color.red() > 120 && color.red() > 2 * color.green() && color.red() > 2 * color.blue();
}

bool isGrey(const QColor& color)
{
    return color.red() > 60 && qAbs(color.red() - color.blue()) < 30
        && qAbs(color.red() - color.green()) < 20;
}

void quitInOrder(QProcess& quib)
{
    sendSignal(quib.processId(), SIGTERM);
    QVERIFY(quib.waitForFinished());
}

} // namespace

/// A freelancer's day with the real program: who is worked for, for how long, and what it comes to.
class WorkingDayTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void timerStartedFromAClient_runsOnTheTimeTabAndInTheWings();
    void runningEntryOfTheLastTime_isKeptFromHalfAMinuteOn_data();
    void runningEntryOfTheLastTime_isKeptFromHalfAMinuteOn();
    void exportedTimesheet_isWhatTheWorkspaceHolds();
    void clientDeletedWithTwoClicks_leavesItsTimeUnderNoClient();
};

void WorkingDayTest::timerStartedFromAClient_runsOnTheTimeTabAndInTheWings()
{
    Desk desk;
    desk.writeData(workspace({}));
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.showTab(ClientsTab);
    desk.click(FirstClient);
    QTRY_VERIFY(desk.pixel(TrackTime - QPoint(34, 0)).blue() > 150); // The button is there.

    desk.click(TrackTime);

    QTRY_COMPARE(savedEntries(desk).size(), 1);
    const auto saved = savedEntries(desk)[0].toObject();
    QCOMPARE(saved.value("clientID"_L1).toString(), Bakery);
    QVERIFY(!saved.contains("end"_L1));
    QTRY_VERIFY(isReddish(desk.pixel(TrackTime - QPoint(30, 0)))); // "Stop"
    desk.showTab(TimeTab);
    QTRY_VERIFY(isReddish(desk.pixel({500, 163})) || isReddish(desk.pixel({500, 150}))
                || isReddish(desk.pixel({500, 140})));

    desk.moveTo(Desk::FarAway);

    QVERIFY(desk.waitForExpanded(false));
    QTRY_COMPARE(desk.pixel(LeftWing), QColor(Qt::black));
}

void WorkingDayTest::runningEntryOfTheLastTime_isKeptFromHalfAMinuteOn_data()
{
    QTest::addColumn<int>("ageAtStart");
    QTest::addColumn<double>("ageAtStop");
    QTest::addColumn<int>("kept");

    QTest::addRow("31 s") << 31 << 31.0 << 1;
    QTest::addRow("29 s") << 20 << 28.5 << 0; // The rest is for the click to arrive.
}

void WorkingDayTest::runningEntryOfTheLastTime_isKeptFromHalfAMinuteOn()
{
    QFETCH(int, ageAtStart);
    QFETCH(double, ageAtStop);
    QFETCH(int, kept);
    Desk desk;
    const auto now = QDateTime::currentSecsSinceEpoch(); // Files hold whole seconds.
    const auto began = QDateTime::fromSecsSinceEpoch(now - ageAtStart).toUTC();
    desk.writeData(workspace({entry(Bakery, began.toString(Qt::ISODate), {})}));
    const auto quib = desk.startQuib();
    QTRY_COMPARE(desk.pixel(LeftWing), QColor(Qt::black));
    desk.openWithPointer();
    desk.showTab(ClientsTab);
    desk.click(FirstClient);
    QTRY_VERIFY(isReddish(desk.pixel(TrackTime - QPoint(30, 0))));

    const auto age = [&] {
        return static_cast<double>(began.msecsTo(QDateTime::currentDateTimeUtc())) / 1000;
    };
    QTRY_VERIFY_WITH_TIMEOUT(age() >= ageAtStop, 30'000);
    desk.click(TrackTime);
    QTRY_VERIFY(!isReddish(desk.pixel(TrackTime - QPoint(30, 0))));
    quitInOrder(*quib);

    QCOMPARE(savedEntries(desk).size(), kept);
    if (kept == 1) {
        QVERIFY(savedEntries(desk)[0].toObject().contains("end"_L1));
    }
}

void WorkingDayTest::exportedTimesheet_isWhatTheWorkspaceHolds()
{
    Desk desk;
    const auto running = ago(120);
    const auto note = u"=SUM(A1), \"quoted\"\nline, é"_s;
    desk.writeData(
        workspace({entry(Bakery, u"2026-01-05T09:00:00Z"_s, u"2026-01-05T10:30:00Z"_s, note),
                   entry({}, u"2026-01-06T09:00:00Z"_s, u"2026-01-06T09:15:00Z"_s),
                   entry(Bakery, running, {})}));
    desk.setVariable(u"TZ"_s, u"UTC"_s);
    QVERIFY(QDir().mkpath(desk.folder(u"Downloads"_s)));
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.showTab(TimeTab);

    desk.click(Export);

    const auto files = [&] { return QDir(desk.folder(u"Downloads"_s)).entryList(QDir::Files); };
    QTRY_COMPARE(files().size(), 1);
    QVERIFY(files()[0].startsWith(u"Korvel-timesheet-"_s));
    const auto rows = readStrictly(desk, desk.folder(u"Downloads/"_s + files()[0]));
    QCOMPARE(rows.size(), 4);
    QCOMPARE(rows[0],
             (QStringList{u"client"_s, u"start"_s, u"end"_s, u"hours"_s, u"rate"_s, u"amount"_s,
                          u"note"_s}));
    QCOMPARE(rows[1],
             (QStringList{BakeryName, u"2026-01-05T09:00:00Z"_s, u"2026-01-05T10:30:00Z"_s,
                          u"1.50"_s, u"40.00"_s, u"60.00"_s, note}));
    QCOMPARE(rows[2],
             (QStringList{u"No client"_s, u"2026-01-06T09:00:00Z"_s, u"2026-01-06T09:15:00Z"_s,
                          u"0.25"_s, u"0.00"_s, u"0.00"_s, QString()}));
    QCOMPARE(rows[3].value(0), BakeryName);
    QCOMPARE(rows[3].value(1), running);
    QVERIFY(rows[3].value(2) > running); // Ends now.
}

void WorkingDayTest::clientDeletedWithTwoClicks_leavesItsTimeUnderNoClient()
{
    Desk desk;
    desk.writeData(workspace({entry(Bakery, ago(3600), ago(0))}));
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.showTab(ClientsTab);
    desk.click(FirstClient);
    QTRY_VERIFY(desk.pixel(TrackTime - QPoint(34, 0)).blue() > 150);

    desk.click(Delete);
    desk.click(Delete);

    QTRY_VERIFY(!desk.data().isEmpty() && desk.data().value("clients"_L1).toArray().isEmpty());
    QCOMPARE(savedEntries(desk).size(), 1);
    desk.showTab(TimeTab);
    QTRY_VERIFY(isGrey(desk.pixel(FirstTotal))); // The bar of no client, as long as the card.
}

QTEST_GUILESS_MAIN(WorkingDayTest)
#include "tst_workingday.moc"
