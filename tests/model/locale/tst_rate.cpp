#include "model/locale/rate.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;
using quib::rateOf;
using quib::rateText;
using quib::UserLocale;

/// What a person types as a rate, and what they are shown of one.
class RateTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void typed_isUnderstood_data();
    void typed_isUnderstood();
    void numbersOfAnotherCountry_areReadAndShown();
    void otherText_isNoNumber_data();
    void otherText_isNoNumber();
    void shown_isShort_data();
    void shown_isShort();
    void shown_isReadBack_data();
    void shown_isReadBack();
    void notFinite_showsNothing();
};

namespace {

UserLocale in(const QByteArray& country)
{
    return {.money = country, .numbers = country};
}

} // namespace

void RateTest::typed_isUnderstood_data()
{
    QTest::addColumn<QByteArray>("country");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("rate");

    QTest::addRow("whole") << "en_GB"_ba << u"35"_s << 35.0;
    QTest::addRow("point") << "en_GB"_ba << u"35.5"_s << 35.5;
    QTest::addRow("group") << "en_GB"_ba << u"1,234.5"_s << 1234.5;
    QTest::addRow("only a point so far") << "en_GB"_ba << u"35."_s << 35.0;
    QTest::addRow("spaces around") << "en_GB"_ba << u"  35 "_s << 35.0;
    QTest::addRow("below zero") << "en_GB"_ba << u"-5"_s << -5.0;
    QTest::addRow("power") << "en_GB"_ba << u"1e3"_s << 1000.0;
    QTest::addRow("no country") << "en"_ba << u"1,234.5"_s << 1234.5;
    QTest::addRow("German comma") << "de_DE"_ba << u"35,5"_s << 35.5;
    QTest::addRow("German group") << "de_DE"_ba << u"1.234,5"_s << 1234.5;
    QTest::addRow("German, group alone") << "de_DE"_ba << u"1.234"_s << 1234.0;
    QTest::addRow("German, a point that groups nothing") << "de_DE"_ba << u"35.5"_s << 35.5;
    QTest::addRow("French, space") << "fr_FR"_ba << u"1 234,5"_s << 1234.5;
    QTest::addRow("French, narrow space") << "fr_FR"_ba << u"1\u202f234,5"_s << 1234.5;
    QTest::addRow("French, space that does not break") << "fr_FR"_ba << u"1\u00a0234,5"_s << 1234.5;
    QTest::addRow("Swiss") << "de_CH"_ba << u"1’234.5"_s << 1234.5;
    QTest::addRow("Swiss, typed") << "de_CH"_ba << u"1'234.5"_s << 1234.5;
    QTest::addRow("Indian") << "hi_IN"_ba << u"1,23,456"_s << 123456.0;
    QTest::addRow("Arabic digits") << "ar_EG"_ba << u"٣٥٫٥"_s << 35.5;
    QTest::addRow("Arabic, Western digits") << "ar_EG"_ba << u"35.5"_s << 35.5;
    QTest::addRow("spaces that group") << "en_GB"_ba << u"1 234 567.5"_s << 1234567.5;
    QTest::addRow("a sign and a space") << "en_GB"_ba << u"- 5"_s << -5.0;
    QTest::addRow("pounds") << "en_GB"_ba << u"£35"_s << 35.0;
    QTest::addRow("pounds of no country") << "en"_ba << u" £ 35 "_s << 35.0;
    QTest::addRow("pounds by their code") << "en_GB"_ba << u"35 gbp"_s << 35.0;
    QTest::addRow("euros") << "de_DE"_ba << u"35,5 €"_s << 35.5;
    QTest::addRow("francs") << "de_CH"_ba << u"CHF 35.5"_s << 35.5;
    QTest::addRow("Egyptian pounds") << "ar_EG"_ba << u"٣٥ ج.م."_s << 35.0;
    QTest::addRow("Swedish, below zero") << "sv_SE"_ba << u"-5,5"_s << -5.5;
}

void RateTest::typed_isUnderstood()
{
    QFETCH(QByteArray, country);
    QFETCH(QString, text);

    const auto rate = rateOf(text, in(country));

    QVERIFY(rate);
    QTEST(*rate, "rate");
}

void RateTest::numbersOfAnotherCountry_areReadAndShown()
{
    const UserLocale locale{.money = "en_GB", .numbers = "de_DE"};

    QCOMPARE(rateOf(u"35,5"_s, locale), 35.5);
    QCOMPARE(rateOf(u"£35,5"_s, locale), 35.5);
    QCOMPARE(rateOf(u"1,234.5"_s, locale), 1234.5); // As in the country of the money.
    QCOMPARE(rateText(35.5, locale), u"35,5"_s);
}

void RateTest::otherText_isNoNumber_data()
{
    QTest::addColumn<QByteArray>("country");
    QTest::addColumn<QString>("text");

    QTest::addRow("nothing") << "en_GB"_ba << u""_s;
    QTest::addRow("a space") << "en_GB"_ba << u" "_s;
    QTest::addRow("a sign") << "en_GB"_ba << u"-"_s;
    QTest::addRow("words") << "en_GB"_ba << u"thirty"_s;
    QTest::addRow("a number and words") << "en_GB"_ba << u"35 an hour"_s;
    QTest::addRow("a comma that groups nothing") << "en_GB"_ba << u"35,5"_s;
    QTest::addRow("two numbers") << "en_GB"_ba << u"35 40"_s;
    QTest::addRow("two numbers in a country that groups by spaces") << "fr_FR"_ba << u"35 40"_s;
    QTest::addRow("a group of four") << "en_GB"_ba << u"1 2345"_s;
    QTest::addRow("another currency") << "en_GB"_ba << u"€35"_s;
    QTest::addRow("a currency alone") << "en_GB"_ba << u"£"_s;
    QTest::addRow("two points") << "en_GB"_ba << u"1.2.3"_s;
    QTest::addRow("not a number") << "en_GB"_ba << u"nan"_s;
    QTest::addRow("infinity") << "en_GB"_ba << u"inf"_s;
    QTest::addRow("infinity as a sign") << "en_GB"_ba << u"∞"_s;
    QTest::addRow("too large") << "en_GB"_ba << u"1e400"_s;
    QTest::addRow("too large below zero") << "en_GB"_ba << u"-1e400"_s;
    QTest::addRow("many digits") << "en_GB"_ba << QString(400, u'9');
    QTest::addRow("hexadecimal") << "en_GB"_ba << u"0x20"_s;
    QTest::addRow("German, too large") << "de_DE"_ba << u"1e400"_s;
}

void RateTest::otherText_isNoNumber()
{
    QFETCH(QByteArray, country);
    QFETCH(QString, text);

    QVERIFY(!rateOf(text, in(country)));
}

void RateTest::shown_isShort_data()
{
    QTest::addColumn<QByteArray>("country");
    QTest::addColumn<double>("rate");
    QTest::addColumn<QString>("text");

    QTest::addRow("whole") << "en_GB"_ba << 35.0 << u"35"_s;
    QTest::addRow("half") << "en_GB"_ba << 35.5 << u"35.5"_s;
    QTest::addRow("a tenth") << "en_GB"_ba << 0.1 << u"0.1"_s;
    QTest::addRow("nothing") << "en_GB"_ba << 0.0 << u"0"_s;
    QTest::addRow("less than nothing") << "en_GB"_ba << -0.0 << u"0"_s;
    QTest::addRow("thousands") << "en_GB"_ba << 1234567.0 << u"1234567"_s;
    QTest::addRow("German") << "de_DE"_ba << 1234.5 << u"1234,5"_s;
    QTest::addRow("no country") << "en"_ba << 35.5 << u"35.5"_s;
}

void RateTest::shown_isShort()
{
    QFETCH(QByteArray, country);
    QFETCH(double, rate);

    QTEST(rateText(rate, in(country)), "text");
}

void RateTest::shown_isReadBack_data()
{
    QTest::addColumn<QByteArray>("country");
    QTest::addColumn<double>("rate");

    for (const auto& country : {"en_GB"_ba, "de_DE"_ba, "fr_FR"_ba, "sv_SE"_ba, "ar_EG"_ba,
                                "fa_IR"_ba, "de_CH"_ba, "hi_IN"_ba, "ja_JP"_ba, "en"_ba}) {
        for (const auto rate : {35.0, 1234.5, -12.25, 1.0 / 3, 1e15, 1e20, 1e300, 5e-324,
                                std::numeric_limits<double>::max()}) {
            QTest::addRow("%s, %g", country.constData(), rate) << country << rate;
        }
    }
}

void RateTest::shown_isReadBack()
{
    QFETCH(QByteArray, country);
    QFETCH(double, rate);

    const auto text = rateText(rate, in(country));

    QVERIFY2(rateOf(text, in(country)) == rate, qPrintable(text));
    QVERIFY2(text.size() < 25 || rate < 1, qPrintable(text));
}

void RateTest::notFinite_showsNothing()
{
    QCOMPARE(rateText(std::numeric_limits<double>::infinity(), in("en_GB")), QString());
    QCOMPARE(rateText(std::numeric_limits<double>::quiet_NaN(), in("en_GB")), QString());
}

QTEST_GUILESS_MAIN(RateTest)
#include "tst_rate.moc"
