#include "model/billing/timesheet.h"

#include "model/time/utc.h"
#include "support/travel.h"

#include <QTest>

using namespace Qt::StringLiterals;
using quib::timesheetCsv;
using quib::Utc;

namespace {

const QUuid Bloom(u"6f1c0a2e-93b4-4d57-8e21-0c5d7a9b1f34"_s);
const QDateTime Nine(QDate(2026, 3, 2), QTime(9, 0), Utc);
constexpr auto Header = "client,start,end,hours,rate,amount,note";

quib::QuibData oneEntry(const quib::Client& client, const quib::TimeEntry& entry)
{
    return {.clients = {client}, .entries = {entry}};
}

/// The line of one entry of a client with that rate.
QByteArray line(qint64 milliseconds, double rate)
{
    const auto csv = timesheetCsv(
        oneEntry({.id = Bloom, .name = u"Bloom"_s, .hourlyRate = rate},
                 {.clientID = Bloom, .start = Nine, .end = Nine.addMSecs(milliseconds)}),
        Nine);
    return csv.split('\n').last();
}

} // namespace

class TimesheetTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void noEntries_isTheHeaderAlone();
    void entries_standInStoredOrder();
    void runningEntry_endsNow();
    void entryOfNobody_hasNoRate_data();
    void entryOfNobody_hasNoRate();
    void note_hasItsQuotesDoubled();
    void clientName_isWrittenAsItIs();
    void lineBreaks_areKept();
    void texts_areUtf8();
    void numbers_haveTwoDecimals_data();
    void numbers_haveTwoDecimals();
    void fractions_countInHoursButNotInTimes();
    void twinClients_countTheFirst();
    void name_isOfTheUsersDay_data();
    void name_isOfTheUsersDay();
    void name_followsTheSystemsTimeZone();
};

void TimesheetTest::noEntries_isTheHeaderAlone()
{
    QCOMPARE(timesheetCsv({}, Nine), QByteArray(Header));
}

void TimesheetTest::entries_standInStoredOrder()
{
    const quib::QuibData data{
        .clients = {{.id = Bloom, .name = u"Bloom"_s, .hourlyRate = 35}},
        .entries = {{.clientID = Bloom,
                     .start = Nine,
                     .end = Nine.addSecs(5400),
                     .note = u"logo, second draft"_s},
                    {.start = Nine.addDays(-1), .end = Nine.addDays(-1).addSecs(900)}}};

    QCOMPARE(timesheetCsv(data, Nine),
             QByteArray(Header)
                 + "\n\"Bloom\",2026-03-02T09:00:00Z,2026-03-02T10:30:00Z,1.50,35.00,52.50,"
                   "\"logo, second draft\""
                   "\n\"No client\",2026-03-01T09:00:00Z,2026-03-01T09:15:00Z,0.25,0.00,0.00,\"\"");
}

void TimesheetTest::runningEntry_endsNow()
{
    const auto csv = timesheetCsv({.entries = {{.start = Nine}}}, Nine.addSecs(3600));

    QVERIFY(csv.endsWith("2026-03-02T09:00:00Z,2026-03-02T10:00:00Z,1.00,0.00,0.00,\"\""));
}

void TimesheetTest::entryOfNobody_hasNoRate_data()
{
    QTest::addColumn<std::optional<QUuid>>("clientID");

    QTest::addRow("no client") << std::optional<QUuid>();
    QTest::addRow("a client that is gone") << std::optional(QUuid::createUuid());
}

void TimesheetTest::entryOfNobody_hasNoRate()
{
    QFETCH(std::optional<QUuid>, clientID);

    const auto csv
        = timesheetCsv(oneEntry({.id = Bloom, .name = u"Bloom"_s, .hourlyRate = 35},
                                {.clientID = clientID, .start = Nine, .end = Nine.addSecs(3600)}),
                       Nine);

    QVERIFY(csv.contains("\n\"No client\","));
    QVERIFY(csv.endsWith(",1.00,0.00,0.00,\"\""));
}

void TimesheetTest::note_hasItsQuotesDoubled()
{
    const auto csv
        = timesheetCsv({.entries = {{.start = Nine, .end = Nine, .note = u"a, \"b\""_s}}}, Nine);

    QVERIFY(csv.endsWith(",\"a, \"\"b\"\"\""));
}

void TimesheetTest::clientName_isWrittenAsItIs()
{
    const auto csv = timesheetCsv(oneEntry({.id = Bloom, .name = u"The \"Best\""_s},
                                           {.clientID = Bloom, .start = Nine, .end = Nine}),
                                  Nine);

    QVERIFY(csv.contains("\n\"The \"Best\"\",2026"));
}

void TimesheetTest::lineBreaks_areKept()
{
    const auto csv
        = timesheetCsv({.entries = {{.start = Nine, .end = Nine, .note = u"a\nb\r\nc"_s}}}, Nine);

    QVERIFY(csv.endsWith(",\"a\nb\r\nc\""));
}

void TimesheetTest::texts_areUtf8()
{
    const auto csv
        = timesheetCsv({.entries = {{.start = Nine, .end = Nine, .note = u"Café 😀"_s}}}, Nine);

    QVERIFY(csv.endsWith(",\"Caf\xC3\xA9 \xF0\x9F\x98\x80\""));
}

void TimesheetTest::numbers_haveTwoDecimals_data()
{
    QTest::addColumn<qint64>("milliseconds");
    QTest::addColumn<double>("rate");
    QTest::addColumn<QByteArray>("end"); // Of the line.

    QTest::addRow("an eighth of an hour") << qint64(450'000) << 0.0 << R"(,0.12,0.00,0.00,"")"_ba;
    QTest::addRow("five eighths") << qint64(2'250'000) << 0.0 << R"(,0.62,0.00,0.00,"")"_ba;
    QTest::addRow("just more than an eighth")
        << qint64(450'001) << 0.0 << R"(,0.13,0.00,0.00,"")"_ba;
    QTest::addRow("amount of the exact hours")
        << qint64(1'200'000) << 100.0 << R"(,0.33,100.00,33.33,"")"_ba;
    QTest::addRow("no grouping") << qint64(3'600'000) * 1500 << 1000.0
                                 << R"(,1500.00,1000.00,1500000.00,"")"_ba;
    QTest::addRow("end before start")
        << qint64(-3'600'000) << 35.5 << R"(,-1.00,35.50,-35.50,"")"_ba;
    QTest::addRow("hardly before it") << qint64(-1000) << 35.0 << R"(,-0.00,35.00,-0.01,"")"_ba;
    QTest::addRow("a rate without measure") << qint64(3'600'000) << 1e300 << R"("")"_ba;
}

void TimesheetTest::numbers_haveTwoDecimals()
{
    QFETCH(qint64, milliseconds);
    QFETCH(double, rate);
    QFETCH(QByteArray, end);

    QVERIFY2(line(milliseconds, rate).endsWith(end), line(milliseconds, rate).constData());
}

void TimesheetTest::fractions_countInHoursButNotInTimes()
{
    const auto text = line(450'900, 0);

    QVERIFY(text.contains("T09:00:00Z,2026-03-02T09:07:30Z,0.13,"));
}

void TimesheetTest::twinClients_countTheFirst()
{
    const quib::QuibData data{.clients = {{.id = Bloom, .name = u"first"_s, .hourlyRate = 1},
                                          {.id = Bloom, .name = u"second"_s, .hourlyRate = 2}},
                              .entries = {{.clientID = Bloom, .start = Nine, .end = Nine}}};

    QVERIFY(timesheetCsv(data, Nine)
                .contains("\"first\",2026-03-02T09:00:00Z,"
                          "2026-03-02T09:00:00Z,0.00,1.00,"));
}

void TimesheetTest::name_isOfTheUsersDay_data()
{
    QTest::addColumn<QByteArray>("locale");
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QString>("name");

    QTest::addRow("Britain") << "en_GB"_ba
                             << "Europe/London"_ba << u"Korvel-timesheet-2026-03-02.csv"_s;
    QTest::addRow("still Sunday in Honolulu")
        << "en_US"_ba
        << "Pacific/Honolulu"_ba << u"Korvel-timesheet-2026-03-01.csv"_s;
    QTest::addRow("Thailand, years of the Buddha")
        << "th_TH"_ba
        << "Asia/Bangkok"_ba << u"Korvel-timesheet-2569-03-02.csv"_s;
    QTest::addRow("Egypt, in digits for files")
        << "ar_EG"_ba
        << "Africa/Cairo"_ba << u"Korvel-timesheet-2026-03-02.csv"_s;
}

void TimesheetTest::name_isOfTheUsersDay()
{
    QFETCH(QByteArray, locale);
    QFETCH(QByteArray, zone);
    QFETCH(QString, name);

    QCOMPARE(quib::timesheetName(Nine, {.dates = locale, .timeZone = QTimeZone(zone)}), name);
}

void TimesheetTest::name_followsTheSystemsTimeZone()
{
    const quib::UserLocale user{.dates = "en_GB", .timeZone = std::nullopt};
    const Travel travel("Europe/London");
    QCOMPARE(quib::timesheetName(Nine, user), u"Korvel-timesheet-2026-03-02.csv"_s);

    Travel::to("Pacific/Honolulu");

    QCOMPARE(quib::timesheetName(Nine, user), u"Korvel-timesheet-2026-03-01.csv"_s);
}

QTEST_GUILESS_MAIN(TimesheetTest)
#include "tst_timesheet.moc"
