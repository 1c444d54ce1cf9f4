#include "model/locale/money.h"

#include <QTest>

using namespace Qt::StringLiterals;

class MoneyTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void formatMoney_data();
    void formatMoney();
    void formatter_givesTheSame();
    void largeAmount_isGroupedAsInTheCountry_data();
    void largeAmount_isGroupedAsInTheCountry();
    void halves_areRoundedToEven_data();
    void halves_areRoundedToEven();
};

void MoneyTest::formatMoney_data()
{
    QTest::addColumn<QByteArray>("locale");
    QTest::addColumn<QStringList>("texts"); // Of 35, 1234.5, 1235.5, -12.4 and 0.

    QTest::addRow("United States")
        << "en_US"_ba << QStringList{u"$35"_s, u"$1,234"_s, u"$1,236"_s, u"-$12"_s, u"$0"_s};
    QTest::addRow("Britain") << "en_GB"_ba
                             << QStringList{u"£35"_s, u"£1,234"_s, u"£1,236"_s, u"-£12"_s, u"£0"_s};
    QTest::addRow("Germany") << "de_DE"_ba
                             << QStringList{u"35\u00A0€"_s, u"1.234\u00A0€"_s, u"1.236\u00A0€"_s,
                                            u"-12\u00A0€"_s, u"0\u00A0€"_s};
    QTest::addRow("France") << "fr_FR"_ba
                            << QStringList{u"35\u00A0€"_s, u"1\u202F234\u00A0€"_s,
                                           u"1\u202F236\u00A0€"_s, u"-12\u00A0€"_s, u"0\u00A0€"_s};
    QTest::addRow("Japan") << "ja_JP"_ba
                           << QStringList{u"￥35"_s, u"￥1,234"_s, u"￥1,236"_s, u"-￥12"_s,
                                          u"￥0"_s};
    QTest::addRow("Egypt") << "ar_EG"_ba
                           << QStringList{u"\u200F٣٥\u00A0ج.م.\u200F"_s,
                                          u"\u200F١٬٢٣٤\u00A0ج.م.\u200F"_s,
                                          u"\u200F١٬٢٣٦\u00A0ج.م.\u200F"_s,
                                          u"\u061C-\u200F١٢\u00A0ج.م.\u200F"_s,
                                          u"\u200F٠\u00A0ج.م.\u200F"_s};
    QTest::addRow("India") << "hi_IN"_ba
                           << QStringList{u"₹35"_s, u"₹1,234"_s, u"₹1,236"_s, u"-₹12"_s, u"₹0"_s};
    QTest::addRow("no country") << "en"_ba
                                << QStringList{u"£35"_s, u"£1,234"_s, u"£1,236"_s, u"-£12"_s,
                                               u"£0"_s};
}

void MoneyTest::formatMoney()
{
    QFETCH(QByteArray, locale);
    QFETCH(QStringList, texts);
    QStringList formatted;

    for (const double amount : {35.0, 1234.5, 1235.5, -12.4, 0.0}) {
        formatted << quib::formatMoney(amount, {.money = locale});
    }

    QCOMPARE(formatted, texts);
}

void MoneyTest::formatter_givesTheSame()
{
    const quib::MoneyFormatter money({.money = "en_GB"});

    QCOMPARE(money.format(35), u"£35"_s);
    QCOMPARE(money.format(1234.5), u"£1,234"_s);
}

void MoneyTest::largeAmount_isGroupedAsInTheCountry_data()
{
    QTest::addColumn<QByteArray>("locale");
    QTest::addColumn<QString>("text");

    QTest::addRow("Britain") << "en_GB"_ba << u"£10,000,000"_s;
    QTest::addRow("India") << "hi_IN"_ba << u"₹1,00,00,000"_s;
    QTest::addRow("Switzerland") << "de_CH"_ba << u"CHF\u00A010’000’000"_s;
}

void MoneyTest::largeAmount_isGroupedAsInTheCountry()
{
    QFETCH(QByteArray, locale);
    QFETCH(QString, text);

    auto formatted = quib::formatMoney(1e7, {.money = locale});

    QCOMPARE(formatted.replace(u'\'', u'’'), text); // Newer locale data have the plain apostrophe.
}

void MoneyTest::halves_areRoundedToEven_data()
{
    QTest::addColumn<double>("amount");
    QTest::addColumn<QString>("text");

    QTest::addRow("0.5") << 0.5 << u"£0"_s;
    QTest::addRow("1.5") << 1.5 << u"£2"_s;
    QTest::addRow("2.5") << 2.5 << u"£2"_s;
    QTest::addRow("more than a half") << 2.500001 << u"£3"_s;
    QTest::addRow("-2.5") << -2.5 << u"-£2"_s;
    QTest::addRow("-0.5") << -0.5 << u"£0"_s;
    QTest::addRow("-0.0") << -0.0 << u"£0"_s;
}

void MoneyTest::halves_areRoundedToEven()
{
    QFETCH(double, amount);
    QFETCH(QString, text);

    QCOMPARE(quib::formatMoney(amount, {.money = "en_GB"}), text);
}

QTEST_GUILESS_MAIN(MoneyTest)
#include "tst_money.moc"
