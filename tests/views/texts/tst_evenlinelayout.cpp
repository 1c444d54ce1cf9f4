#include "views/texts/evenlinelayout.h"

#include <QGuiApplication>
#include <QRandomGenerator>
#include <QTest>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

using namespace Qt::StringLiterals;
using quib::EvenLineLayout;

/// Held beside the layout that Qt brings.
class EvenLineLayoutTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void lines_areWhereQtHasThem_data();
    void lines_areWhereQtHasThem();
    void lines_areWhereQtHasThemAfterAnyEdit();
    void otherWidth_laysOutAnew();
    void otherFont_laysOutAnew();
    void composedText_countsAsQtCountsIt();
    void lettersOfOtherFonts_standOnEvenLines();
    void wordOfAMegabyte_isLaidOutAtAll();
    void withoutAWidth_aBlockHasItsLine();
};

namespace {

constexpr double Width = 300;

struct Documents {
    QTextDocument qt;
    QTextDocument ours;

    explicit Documents(const QString& text = {})
    {
        ours.setDocumentLayout(new EvenLineLayout(&ours));
        each([&](QTextDocument& document) {
            QFont font;
            font.setPixelSize(25);
            QTextOption option;
            option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
            document.setDocumentMargin(0);
            document.setDefaultFont(font);
            document.setDefaultTextOption(option);
            document.setTextWidth(Width);
            document.setPlainText(text);
        });
    }

    void each(const std::function<void(QTextDocument&)>& change)
    {
        change(qt);
        change(ours);
    }
};

bool isNear(double one, double other)
{
    return qAbs(one - other) < 0.5;
}

bool hasSameBlocks(const Documents& documents)
{
    auto block = documents.qt.begin();
    auto ours = documents.ours.begin();
    for (; block.isValid(); block = block.next(), ours = ours.next()) {
        const auto expected = documents.qt.documentLayout()->blockBoundingRect(block);
        const auto found = documents.ours.documentLayout()->blockBoundingRect(ours);
        if (!isNear(expected.top(), found.top()) || !isNear(expected.bottom(), found.bottom())
            || block.layout()->lineCount() != ours.layout()->lineCount()) {
            qWarning() << "block" << block.blockNumber() << expected << found;
            return false;
        }
    }
    return !ours.isValid() && isNear(documents.qt.size().height(), documents.ours.size().height());
}

/// Above the text, in the middle of each line, and below it.
bool hasSameHits(const Documents& documents)
{
    QList<double> heights{-20, documents.qt.size().height() + 20};
    for (auto block = documents.qt.begin(); block.isValid(); block = block.next()) {
        const auto top = documents.qt.documentLayout()->blockBoundingRect(block).top();
        for (int number = 0; number < block.layout()->lineCount(); ++number) {
            const auto line = block.layout()->lineAt(number);
            heights << top + line.y() + line.height() / 2;
        }
    }
    for (const double y : heights) {
        for (int x = -5; x < Width + 20; x += 23) {
            const auto expected
                = documents.qt.documentLayout()->hitTest(QPointF(x, y), Qt::FuzzyHit);
            const auto found
                = documents.ours.documentLayout()->hitTest(QPointF(x, y), Qt::FuzzyHit);
            if (expected != found) {
                qWarning() << "at" << x << y << expected << found;
                return false;
            }
        }
    }
    return true;
}

} // namespace

void EvenLineLayoutTest::lines_areWhereQtHasThem_data()
{
    QTest::addColumn<QString>("text");

    QTest::addRow("nothing") << QString();
    QTest::addRow("one line") << u"Call Ann"_s;
    QTest::addRow("empty lines") << u"\n\nCall\n\nAnn\n"_s;
    QTest::addRow("long lines") << u"Call Ann about the homepage and what comes after. "_s.repeated(
                                       9)
            + u"\nshort\n"_s + u"word "_s.repeated(50);
    QTest::addRow("a word without an end") << u"w"_s.repeated(200);
    QTest::addRow("tabs and separators") << u"a\tb\u2028c\u2028\u2028d\te"_s;
}

void EvenLineLayoutTest::lines_areWhereQtHasThem()
{
    QFETCH(QString, text);
    const Documents documents(text);

    QVERIFY(hasSameBlocks(documents));
    QVERIFY(hasSameHits(documents));
}

void EvenLineLayoutTest::lines_areWhereQtHasThemAfterAnyEdit()
{
    QRandomGenerator random(7);
    Documents documents(u"Call Ann about the homepage.\n"_s.repeated(20));
    const QStringList pieces{u"x"_s, u"\n"_s, u"some words to wrap around the edge "_s.repeated(3),
                             u"one\ntwo\nthree"_s, u"\n\n\n"_s};
    for (int edit = 0; edit < 300; ++edit) {
        const int length = documents.qt.characterCount();
        const int from = static_cast<int>(random.bounded(length));
        const int to = qMin(length - 1, from + static_cast<int>(random.bounded(20)));
        const int kind = static_cast<int>(random.bounded(4));
        const auto& piece = pieces.at(random.bounded(pieces.size()));
        documents.each([&](QTextDocument& document) {
            QTextCursor cursor(&document);
            cursor.setPosition(from);
            if (kind == 0) {
                document.undo();
            } else if (kind == 1) {
                cursor.setPosition(to, QTextCursor::KeepAnchor);
                cursor.removeSelectedText();
            } else {
                cursor.insertText(piece);
            }
        });

        QVERIFY(hasSameBlocks(documents));
    }
    QVERIFY(hasSameHits(documents));
}

void EvenLineLayoutTest::otherWidth_laysOutAnew()
{
    Documents documents(u"Call Ann about the homepage and what comes after. "_s.repeated(9));

    documents.each([](QTextDocument& document) { document.setTextWidth(Width / 2); });

    QVERIFY(hasSameBlocks(documents));
}

void EvenLineLayoutTest::otherFont_laysOutAnew()
{
    Documents documents(u"Call Ann about the homepage and what comes after. "_s.repeated(9));
    QFont font;
    font.setPixelSize(40);

    documents.each([&](QTextDocument& document) { document.setDefaultFont(font); });

    QVERIFY(hasSameBlocks(documents));
}

void EvenLineLayoutTest::composedText_countsAsQtCountsIt()
{
    Documents documents(u"Call Ann"_s);

    documents.each([](QTextDocument& document) {
        QTextCursor cursor(&document);
        cursor.beginEditBlock();
        cursor.block().layout()->setPreeditArea(5, u"composed"_s);
        cursor.endEditBlock();
    });

    QVERIFY(hasSameHits(documents));
}

/// Their own lines are higher where the font has them.
void EvenLineLayoutTest::lettersOfOtherFonts_standOnEvenLines()
{
    const Documents documents(u"plain\n\u6f22\u5b57 \U0001F600 \u0e01\u0e34\u0e48\nplain"_s);
    const auto* layout = documents.ours.documentLayout();
    const auto baseline = [&](int number) {
        const auto block = documents.ours.findBlockByNumber(number);
        const auto top = layout->blockBoundingRect(block).top(); // Lays it out.
        const auto line = block.layout()->lineAt(0);
        return top + line.y() + line.ascent();
    };

    QCOMPARE(baseline(1) - baseline(0), baseline(2) - baseline(1));
}

/// Where Qt's own layout takes a minute.
void EvenLineLayoutTest::wordOfAMegabyte_isLaidOutAtAll()
{
    Documents documents;

    documents.ours.setPlainText(QString(1'000'000, u'w'));

    const auto* words = documents.ours.firstBlock().layout();
    QVERIFY(documents.ours.size().height() > 0);
    QVERIFY(words->lineCount() > 10'000);
    QVERIFY(words->boundingRect().width() <= Width);
}

/// Qt crashes where it draws one without.
void EvenLineLayoutTest::withoutAWidth_aBlockHasItsLine()
{
    Documents documents(u"Call\nAnn"_s);

    documents.ours.setTextWidth(-20);
    documents.ours.setPlainText(u"Call Ann\nor Bob"_s);

    for (auto block = documents.ours.begin(); block.isValid(); block = block.next()) {
        QVERIFY(documents.ours.documentLayout()->blockBoundingRect(block).height() > 0);
        QCOMPARE(block.layout()->lineCount(), 1);
    }
}

QTEST_MAIN(EvenLineLayoutTest)
#include "tst_evenlinelayout.moc"
