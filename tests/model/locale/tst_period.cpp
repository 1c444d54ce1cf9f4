#include "model/locale/period.h"

#include "support/travel.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QDateTime moment(const QString& text)
{
    return QDateTime::fromString(text, Qt::ISODate);
}

QString textOf(const QDateTime& moment)
{
    return moment.toString(Qt::ISODate);
}

quib::UserLocale locale(const QByteArray& name, const QByteArray& zone)
{
    return {.dates = name, .timeZone = QTimeZone(zone)};
}

} // namespace

class PeriodTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void startOfWeek_followsTheCountry_data();
    void startOfWeek_followsTheCountry();
    void startOfWeek_isTheLastFirstDay_data();
    void startOfWeek_isTheLastFirstDay();
    void startOfWeek_followsTheTimeZone_data();
    void startOfWeek_followsTheTimeZone();
    void startOfMonth_data();
    void startOfMonth();
    void startOfDay_data();
    void startOfDay();
    void systemsTimeZone_isFollowed();
};

void PeriodTest::startOfWeek_followsTheCountry_data()
{
    QTest::addColumn<QByteArray>("country");
    QTest::addColumn<QString>("start"); // Of the week of Sunday, 15 November 2026.

    QTest::addRow("United States") << "en_US"_ba << u"2026-11-15T00:00:00Z"_s;
    QTest::addRow("Britain") << "en_GB"_ba << u"2026-11-09T00:00:00Z"_s;
    QTest::addRow("Germany") << "de_DE"_ba << u"2026-11-09T00:00:00Z"_s;
    QTest::addRow("France") << "fr_FR"_ba << u"2026-11-09T00:00:00Z"_s;
    QTest::addRow("Japan") << "ja_JP"_ba << u"2026-11-15T00:00:00Z"_s;
    QTest::addRow("Egypt") << "ar_EG"_ba << u"2026-11-14T00:00:00Z"_s;
    QTest::addRow("India") << "hi_IN"_ba << u"2026-11-15T00:00:00Z"_s;
    QTest::addRow("no country") << "en"_ba << u"2026-11-15T00:00:00Z"_s;
}

void PeriodTest::startOfWeek_followsTheCountry()
{
    QFETCH(QByteArray, country);
    QFETCH(QString, start);

    const auto found = quib::startOfWeek(moment(u"2026-11-15T09:41:00Z"_s), locale(country, "UTC"));

    QCOMPARE(textOf(found), start);
}

void PeriodTest::startOfWeek_isTheLastFirstDay_data()
{
    QTest::addColumn<QString>("now");
    QTest::addColumn<QString>("start");

    QTest::addRow("its first moment") << u"2026-03-02T00:00:00Z"_s << u"2026-03-02T00:00:00Z"_s;
    QTest::addRow("the moment before") << u"2026-03-01T23:59:59Z"_s << u"2026-02-23T00:00:00Z"_s;
    QTest::addRow("its last day") << u"2026-03-08T12:00:00Z"_s << u"2026-03-02T00:00:00Z"_s;
    QTest::addRow("over the end of a year")
        << u"2026-01-01T12:00:00Z"_s << u"2025-12-29T00:00:00Z"_s;
}

void PeriodTest::startOfWeek_isTheLastFirstDay()
{
    QFETCH(QString, now);
    QFETCH(QString, start);

    QCOMPARE(textOf(quib::startOfWeek(moment(now), locale("en_GB", "UTC"))), start);
}

void PeriodTest::startOfWeek_followsTheTimeZone_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QString>("now");
    QTest::addColumn<QString>("start");

    QTest::addRow("already Monday in Auckland")
        << "Pacific/Auckland"_ba << u"2026-11-15T12:00:00Z"_s << u"2026-11-15T11:00:00Z"_s;
    QTest::addRow("still Sunday in Los Angeles")
        << "America/Los_Angeles"_ba << u"2026-11-16T05:00:00Z"_s << u"2026-11-09T08:00:00Z"_s;
    QTest::addRow("the week in which clocks went forward")
        << "Europe/London"_ba << u"2026-03-29T12:00:00Z"_s << u"2026-03-23T00:00:00Z"_s;
    QTest::addRow("the week after")
        << "Europe/London"_ba << u"2026-04-01T12:00:00Z"_s << u"2026-03-29T23:00:00Z"_s;
    QTest::addRow("clocks went back at one on Sunday in Havana")
        << "America/Havana"_ba << u"2026-11-01T12:00:00Z"_s << u"2026-10-26T04:00:00Z"_s;
    QTest::addRow("clocks went forward at midnight on Sunday in Beirut")
        << "Asia/Beirut"_ba << u"2026-03-29T12:00:00Z"_s << u"2026-03-22T22:00:00Z"_s;
    QTest::addRow("a zone without a name")
        << "UTC+05:30"_ba << u"2026-11-18T12:00:00Z"_s << u"2026-11-15T18:30:00Z"_s;
}

void PeriodTest::startOfWeek_followsTheTimeZone()
{
    QFETCH(QByteArray, zone);
    QFETCH(QString, now);
    QFETCH(QString, start);

    QCOMPARE(textOf(quib::startOfWeek(moment(now), locale("en_GB", zone))), start);
}

void PeriodTest::startOfMonth_data()
{
    QTest::addColumn<QByteArray>("country");
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QString>("now");
    QTest::addColumn<QString>("start");

    QTest::addRow("in its middle")
        << "en_GB"_ba
        << "UTC"_ba << u"2026-11-15T09:41:00Z"_s << u"2026-11-01T00:00:00Z"_s;
    QTest::addRow("its first moment")
        << "en_GB"_ba
        << "UTC"_ba << u"2026-11-01T00:00:00Z"_s << u"2026-11-01T00:00:00Z"_s;
    QTest::addRow("the 31st") << "en_GB"_ba
                              << "UTC"_ba << u"2026-12-31T23:59:59Z"_s << u"2026-12-01T00:00:00Z"_s;
    QTest::addRow("already the next one in Auckland")
        << "en_GB"_ba
        << "Pacific/Auckland"_ba << u"2026-11-30T11:30:00Z"_s << u"2026-11-30T11:00:00Z"_s;
    QTest::addRow("clocks were changed in it")
        << "en_GB"_ba
        << "Europe/London"_ba << u"2026-03-30T12:00:00Z"_s << u"2026-03-01T00:00:00Z"_s;
    QTest::addRow("Iran, the Persian calendar")
        << "fa_IR"_ba
        << "UTC"_ba << u"2026-11-15T09:41:00Z"_s << u"2026-10-23T00:00:00Z"_s;
}

void PeriodTest::startOfMonth()
{
    QFETCH(QByteArray, country);
    QFETCH(QByteArray, zone);
    QFETCH(QString, now);
    QFETCH(QString, start);

    QCOMPARE(textOf(quib::startOfMonth(moment(now), locale(country, zone))), start);
}

void PeriodTest::startOfDay_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QString>("now");
    QTest::addColumn<QString>("start");

    QTest::addRow("UTC") << "UTC"_ba << u"2026-11-15T09:41:00Z"_s << u"2026-11-15T00:00:00Z"_s;
    QTest::addRow("already tomorrow in Auckland")
        << "Pacific/Auckland"_ba << u"2026-11-15T12:00:00Z"_s << u"2026-11-15T11:00:00Z"_s;
    QTest::addRow("clocks go forward at midnight in Beirut")
        << "Asia/Beirut"_ba << u"2026-03-29T12:00:00Z"_s << u"2026-03-28T22:00:00Z"_s;
    QTest::addRow("midnight comes twice in Havana")
        << "America/Havana"_ba << u"2026-11-01T12:00:00Z"_s << u"2026-11-01T04:00:00Z"_s;
}

void PeriodTest::startOfDay()
{
    QFETCH(QByteArray, zone);
    QFETCH(QString, now);
    QFETCH(QString, start);

    QCOMPARE(textOf(quib::startOfDay(moment(now), locale("en_GB", zone))), start);
}

void PeriodTest::systemsTimeZone_isFollowed()
{
    const Travel travel("Pacific/Auckland");
    const quib::UserLocale user{.dates = "en_GB", .timeZone = std::nullopt};
    const auto now = moment(u"2026-11-30T11:30:00Z"_s); // Tuesday in Auckland.
    const auto starts = [&] {
        return QStringList{textOf(quib::startOfDay(now, user)),
                           textOf(quib::startOfWeek(now, user)),
                           textOf(quib::startOfMonth(now, user))};
    };
    const QStringList inAuckland{u"2026-11-30T11:00:00Z"_s, u"2026-11-29T11:00:00Z"_s,
                                 u"2026-11-30T11:00:00Z"_s};
    QCOMPARE(starts(), inAuckland);

    Travel::to("Pacific/Honolulu");

    const QStringList inHonolulu{u"2026-11-30T10:00:00Z"_s, u"2026-11-30T10:00:00Z"_s,
                                 u"2026-11-01T10:00:00Z"_s};
    QCOMPARE(starts(), inHonolulu);
}

QTEST_GUILESS_MAIN(PeriodTest)
#include "tst_period.moc"
