#include "views/texts/textline.h"

#include <QFontMetricsF>
#include <QTest>

using namespace Qt::StringLiterals;
using quib::TextLine;

class TextLineTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void unbroken_putsSpacesForLineBreaks_data();
    void unbroken_putsSpacesForLineBreaks();
    void beginning_ofAShortText_isTheText();
    void beginning_ofALongText_isThreeHundredCharactersAndAnEllipsis();
    void beginning_cutsBetweenWholeCharacters_data();
    void beginning_cutsBetweenWholeCharacters();
    void beginning_ofOneEndlessCharacter_isOnlyTheEllipsis();
    void ends_keepTheBeginningAndTheEnd();
    void ends_cutBetweenWholeCharacters();
    void standsInCells_data();
    void standsInCells();
    void isolated_onlyWhatReadsFromTheRight();
    void widestDigit_isAsWideAsTheWidest();
};

void TextLineTest::unbroken_putsSpacesForLineBreaks_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("line");

    QTest::addRow("none") << u"Corner Cafe"_s << u"Corner Cafe"_s;
    QTest::addRow("empty") << QString() << QString();
    QTest::addRow("line feed") << u"a\nb"_s << u"a b"_s;
    QTest::addRow("of Windows") << u"a\r\nb\r\n\r\nc"_s << u"a b  c"_s;
    QTest::addRow("carriage return") << u"a\rb"_s << u"a b"_s;
    QTest::addRow("vertical tab and form feed") << u"a\vb\fc"_s << u"a b c"_s;
    QTest::addRow("what steers devices")
        << u"a"_s + QChar::Null + u"b\u001b\u007f\u0084c\td"_s << u"abc\td"_s;
    QTest::addRow("of Unicode") << u"a\u2028b\u2029c\u0085d"_s << u"a b c d"_s;
}

void TextLineTest::unbroken_putsSpacesForLineBreaks()
{
    QFETCH(QString, text);
    QFETCH(QString, line);

    QCOMPARE(TextLine::unbroken(text), line);
    QCOMPARE(TextLine::beginning(text), line);
}

void TextLineTest::beginning_ofAShortText_isTheText()
{
    const QString text(300, u'x');

    QCOMPARE(TextLine::beginning(text), text);
}

void TextLineTest::beginning_ofALongText_isThreeHundredCharactersAndAnEllipsis()
{
    const QString text(1'000'000, u'x');

    QCOMPARE(TextLine::beginning(text), QString(300, u'x') + u'…');
}

void TextLineTest::beginning_cutsBetweenWholeCharacters_data()
{
    QTest::addColumn<QString>("character");
    QTest::addColumn<int>("shown");

    QTest::addRow("of two code units") << u"\U0001F600"_s << 300;
    QTest::addRow("with an accent of its own") << u"e\u0301"_s << 300;
    QTest::addRow("a family") << u"\U0001F468\u200D\U0001F469\u200D\U0001F467"_s << 300;
    QTest::addRow("of so many marks that 3000 units end in its midst")
        << u"e"_s + QString(17, QChar(0x301)) << 166;
}

void TextLineTest::beginning_cutsBetweenWholeCharacters()
{
    QFETCH(QString, character);
    QFETCH(int, shown);

    const auto line = TextLine::beginning(character.repeated(400));

    QCOMPARE(line, character.repeated(shown) + u'…');
}

void TextLineTest::beginning_ofOneEndlessCharacter_isOnlyTheEllipsis()
{
    QCOMPARE(TextLine::beginning(u"e"_s + QString(1'000'000, QChar(0x301))), u"…"_s);
}

void TextLineTest::ends_keepTheBeginningAndTheEnd()
{
    const auto folder = u"/home/ann/"_s + QString(1000, u'x') + u"/Café\nweb"_s;

    const auto line = TextLine::ends(folder);

    QCOMPARE(line.size(), 301);
    QVERIFY(line.startsWith(u"/home/ann/x"_s));
    QVERIFY(line.endsWith(u"x/Café web"_s));
    QCOMPARE(line.count(u'…'), 1);
    QCOMPARE(TextLine::ends(QString(300, u'x')), QString(300, u'x'));
}

void TextLineTest::ends_cutBetweenWholeCharacters()
{
    const auto family = u"\U0001F468\u200D\U0001F469\u200D\U0001F467"_s;
    const auto endless = u"e"_s + QString(1'000'000, QChar(0x301));

    QCOMPARE(TextLine::ends(family.repeated(400)),
             family.repeated(150) + u'…' + family.repeated(150));
    QCOMPARE(TextLine::ends(family.repeated(60)), family.repeated(60));
    QVERIFY(TextLine::ends(endless).size() <= 2);
}

void TextLineTest::standsInCells_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("stands");

    QTest::addRow("Britain") << u"-£1,234"_s << true;
    QTest::addRow("Germany") << u"1.234\u00a0€"_s << true;
    QTest::addRow("Israel") << u"\u200f1,234\u00a0\u200f₪"_s << false;
    QTest::addRow("Egypt") << u"\u200f١٬٢٣٤\u00a0ج.م.\u200f"_s << false;
    QTest::addRow("an accent of its own") << u"e\u0301"_s << false;
    QTest::addRow("of two code units") << u"\U0001F600"_s << false;
}

void TextLineTest::standsInCells()
{
    QFETCH(QString, text);

    QTEST(TextLine::standsInCells(text), "stands");
}

void TextLineTest::isolated_onlyWhatReadsFromTheRight()
{
    QCOMPARE(TextLine::isolated(u"£1,234"_s), u"£1,234"_s);
    QCOMPARE(TextLine::isolated(u"١٬٢٣٤"_s), u"\u2068١٬٢٣٤\u2069"_s);
}

void TextLineTest::widestDigit_isAsWideAsTheWidest()
{
    QFont font(u"Inter"_s); // A one is narrower than a zero in it.
    font.setPixelSize(23);
    const QFontMetricsF metrics(font);

    const double widest = TextLine::widestDigit(font);

    QVERIFY(metrics.horizontalAdvance(u'1') < widest);
    for (const auto digit : u"0123456789"_s) {
        QVERIFY(metrics.horizontalAdvance(digit) <= widest);
    }
}

QTEST_MAIN(TextLineTest)
#include "tst_textline.moc"
