#include "model/locale/datetexts.h"

#include "model/time/utc.h"
#include "support/travel.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;
using quib::DateTexts;
using quib::Utc;

namespace {

const QDateTime Sunday(QDate(2026, 11, 15), QTime(9, 41), Utc);

/// With the comma that British days have lost in newer locale data.
QString withComma(QString day)
{
    static const QRegularExpression weekday(u"^(\\w+) (?=\\d)"_s);
    return day.replace(weekday, u"\\1, "_s);
}

/// "2026-11-15" by the user's calendar.
QString numericDay(const QByteArray& locale, const QDateTime& moment,
                   const QTimeZone& zone = QTimeZone::utc())
{
    return DateTexts({.dates = locale, .timeZone = zone}).numericDay(moment);
}

} // namespace

class DateTextsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void moments_data();
    void moments();
    void timeSpan_data();
    void timeSpan();
    void timeSpan_hasTheTwoLargestParts_data();
    void timeSpan_hasTheTwoLargestParts();
    void numericDay_isOfTheUsersCalendar_data();
    void numericDay_isOfTheUsersCalendar();
    void moment_isShownInTheUsersTimeZone_data();
    void moment_isShownInTheUsersTimeZone();
    void moment_mayBeGivenInAnyZone();
    void systemsTimeZone_isFollowed();
};

void DateTextsTest::moments_data()
{
    QTest::addColumn<QByteArray>("locale");
    QTest::addColumn<QString>("weekdayAndDay");
    QTest::addColumn<QString>("dayAndTime");
    QTest::addColumn<QString>("timeOfDay");

    QTest::addRow("United States")
        << "en_US"_ba << u"Sun, Nov 15"_s << u"Nov 15, 2026 at 9:41\u202FAM"_s << u"9:41\u202FAM"_s;
    QTest::addRow("Britain") << "en_GB"_ba << u"Sun, 15 Nov"_s << u"15 Nov 2026 at 09:41"_s
                             << u"09:41"_s;
    QTest::addRow("Germany") << "de_DE"_ba << u"So., 15. Nov."_s << u"15. Nov. 2026 um 09:41"_s
                             << u"09:41"_s;
    QTest::addRow("France") << "fr_FR"_ba << u"dim. 15 nov."_s << u"15 nov. 2026 à 09:41"_s
                            << u"09:41"_s;
    QTest::addRow("Japan") << "ja_JP"_ba << u"11月15日(日)"_s << u"2026年11月15日 9:41"_s
                           << u"9:41"_s;
    QTest::addRow("Egypt") << "ar_EG"_ba << u"الأحد، ١٥ نوفمبر"_s << u"١٥ نوفمبر ٢٠٢٦ في ٩:٤١ ص"_s
                           << u"٩:٤١ ص"_s;
    QTest::addRow("India") << "hi_IN"_ba << u"रवि, 15 नव॰"_s << u"15 नव॰ 2026 को 9:41 am बजे"_s
                           << u"9:41 am"_s;
    QTest::addRow("no country") << "en"_ba << u"Sun, Nov 15"_s << u"Nov 15, 2026 at 9:41\u202FAM"_s
                                << u"9:41\u202FAM"_s;
}

void DateTextsTest::moments()
{
    QFETCH(QByteArray, locale);
    QFETCH(QString, weekdayAndDay);
    QFETCH(QString, dayAndTime);
    QFETCH(QString, timeOfDay);
    const DateTexts texts({.dates = locale});

    QCOMPARE(withComma(texts.weekdayAndDay(Sunday)), weekdayAndDay);
    QCOMPARE(texts.dayAndTime(Sunday), dayAndTime);
    QCOMPARE(texts.timeOfDay(Sunday), timeOfDay);
}

void DateTextsTest::timeSpan_data()
{
    QTest::addColumn<QByteArray>("locale");
    QTest::addColumn<QString>("minutes"); // 15 and 30 seconds.
    QTest::addColumn<QString>("hours"); // 2 and a minute.

    QTest::addRow("United States") << "en_US"_ba << u"15 min, 30 sec"_s << u"2 hr, 1 min"_s;
    QTest::addRow("Britain") << "en_GB"_ba << u"15 mins, 30 secs"_s << u"2 hrs, 1 min"_s;
    QTest::addRow("Germany") << "de_DE"_ba << u"15 Min., 30 Sek."_s << u"2 Std., 1 Min."_s;
    QTest::addRow("France") << "fr_FR"_ba << u"15\u00A0min et 30\u202Fs"_s
                            << u"2\u202Fh et 1\u00A0min"_s;
    QTest::addRow("Japan") << "ja_JP"_ba << u"15 分 30 秒"_s << u"2 時間 1 分"_s;
    QTest::addRow("Egypt") << "ar_EG"_ba << u"١٥ د و٣٠ ث"_s << u"٢ س و١ د"_s;
    QTest::addRow("India") << "hi_IN"_ba << u"15 मि॰, 30 से॰"_s << u"2 घं॰, 1 मि॰"_s;
    QTest::addRow("no country") << "en"_ba << u"15 min, 30 sec"_s << u"2 hr, 1 min"_s;
}

void DateTextsTest::timeSpan()
{
    QFETCH(QByteArray, locale);
    QFETCH(QString, minutes);
    QFETCH(QString, hours);
    const DateTexts texts({.dates = locale});

    QCOMPARE(texts.timeSpan(15 * 60 + 30), minutes);
    QCOMPARE(texts.timeSpan(2 * 3600 + 60), hours);
}

void DateTextsTest::timeSpan_hasTheTwoLargestParts_data()
{
    QTest::addColumn<double>("seconds");
    QTest::addColumn<QString>("text");

    QTest::addRow("nothing") << 0.0 << u"0 secs"_s;
    QTest::addRow("a part of a second") << 0.9 << u"0 secs"_s;
    QTest::addRow("a second") << 1.0 << u"1 sec"_s;
    QTest::addRow("a minute sharp") << 60.0 << u"1 min"_s;
    QTest::addRow("an hour and a few seconds") << 3605.0 << u"1 hr"_s;
    QTest::addRow("an hour and some minutes") << 3725.0 << u"1 hr, 2 mins"_s;
    QTest::addRow("a day and some hours") << 90'000.0 << u"1 day, 1 hr"_s;
    QTest::addRow("past or future are alike") << -930.0 << u"15 mins, 30 secs"_s;
    QTest::addRow("no number") << std::nan("") << u"0 secs"_s;
}

void DateTextsTest::timeSpan_hasTheTwoLargestParts()
{
    QFETCH(double, seconds);
    QFETCH(QString, text);

    QCOMPARE(DateTexts({.dates = "en_GB"}).timeSpan(seconds), text);
}

void DateTextsTest::numericDay_isOfTheUsersCalendar_data()
{
    QTest::addColumn<QByteArray>("locale");
    QTest::addColumn<QString>("text");

    QTest::addRow("Britain") << "en_GB"_ba << u"2026-11-15"_s;
    QTest::addRow("Egypt, in digits for files") << "ar_EG"_ba << u"2026-11-15"_s;
    QTest::addRow("Thailand, years of the Buddha") << "th_TH"_ba << u"2569-11-15"_s;
    QTest::addRow("Iran, the Persian calendar") << "fa_IR"_ba << u"1405-08-24"_s;
}

void DateTextsTest::numericDay_isOfTheUsersCalendar()
{
    QFETCH(QByteArray, locale);
    QFETCH(QString, text);

    QCOMPARE(numericDay(locale, Sunday), text);
}

void DateTextsTest::moment_isShownInTheUsersTimeZone_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QString>("text");

    QTest::addRow("UTC") << "UTC"_ba << u"2026-11-15"_s;
    QTest::addRow("Auckland, 13 hours ahead") << "Pacific/Auckland"_ba << u"2026-11-16"_s;
    QTest::addRow("an offset without a name") << "UTC+14:00"_ba << u"2026-11-16"_s;
    QTest::addRow("Los Angeles") << "America/Los_Angeles"_ba << u"2026-11-15"_s;
}

void DateTextsTest::moment_isShownInTheUsersTimeZone()
{
    QFETCH(QByteArray, zone);
    QFETCH(QString, text);

    QCOMPARE(numericDay("en_GB", Sunday.addSecs(7200), QTimeZone(zone)), text);
}

void DateTextsTest::moment_mayBeGivenInAnyZone()
{
    const auto elsewhere = Sunday.toTimeZone(QTimeZone("Pacific/Auckland"));

    QCOMPARE(DateTexts({.dates = "en_GB"}).timeOfDay(elsewhere), u"09:41"_s);
}

void DateTextsTest::systemsTimeZone_isFollowed()
{
    const Travel travel("Pacific/Auckland"); // 13 hours ahead; Honolulu is 10 behind.
    const DateTexts texts({.dates = "en_GB", .timeZone = std::nullopt});
    const auto all = [&] {
        return QStringList{withComma(texts.weekdayAndDay(Sunday)), texts.dayAndTime(Sunday),
                           texts.timeOfDay(Sunday), texts.numericDay(Sunday)};
    };
    const QStringList inAuckland{u"Sun, 15 Nov"_s, u"15 Nov 2026 at 22:41"_s, u"22:41"_s,
                                 u"2026-11-15"_s};
    QCOMPARE(all(), inAuckland);

    Travel::to("Pacific/Honolulu");

    const QStringList inHonolulu{u"Sat, 14 Nov"_s, u"14 Nov 2026 at 23:41"_s, u"23:41"_s,
                                 u"2026-11-14"_s};
    QCOMPARE(all(), inHonolulu);
    Travel::to("Pacific/Auckland");
    QCOMPARE(all(), inAuckland);
}

QTEST_GUILESS_MAIN(DateTextsTest)
#include "tst_datetexts.moc"
