#include "views/models/listdiff.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using quib::diffRows;
using quib::RowStep;

namespace {

using Ids = std::vector<QUuid>;

QUuid idOf(int number)
{
    return {static_cast<uint>(number), 0, 0, 0, 0, 0, 0, 0, 0, 0, 1};
}

Ids ids(const QString& letters)
{
    Ids out;
    std::ranges::transform(letters, std::back_inserter(out),
                           [](QChar letter) { return idOf(letter.unicode()); });
    return out;
}

/// What a view does with a step. Rows are checked, as a model of Qt's would.
void apply(const RowStep& step, Ids& rows, const Ids& wanted)
{
    switch (step.kind) {
    case RowStep::Kind::Remove:
        QVERIFY(step.row >= 0 && step.row < std::ssize(rows));
        rows.erase(rows.begin() + step.row);
        return;
    case RowStep::Kind::Insert:
        QVERIFY(step.row >= 0 && step.row <= std::ssize(rows));
        rows.insert(rows.begin() + step.row, wanted.at(static_cast<std::size_t>(step.source)));
        return;
    case RowStep::Kind::Move: {
        QVERIFY(step.row != step.source);
        QVERIFY(std::max(step.row, step.source) < std::ssize(rows));
        const auto id = rows.at(static_cast<std::size_t>(step.source));
        rows.erase(rows.begin() + step.source);
        rows.insert(rows.begin() + step.row, id);
        return;
    }
    }
}

/// `shown` after the steps to `wanted`.
Ids afterSteps(Ids shown, const Ids& wanted)
{
    for (const auto& step : diffRows(shown, wanted)) {
        apply(step, shown, wanted);
    }
    return shown;
}

Ids manyIds(int count)
{
    Ids out(static_cast<std::size_t>(count));
    std::ranges::generate(out, [number = 0]() mutable { return idOf(number++); });
    return out;
}

Ids someIds(QRandomGenerator& dice)
{
    Ids out(dice.bounded(12U));
    std::ranges::generate(out, [&] { return idOf(dice.bounded(8)); });
    return out;
}

} // namespace

class ListDiffTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void steps_areFewAndRight_data();
    void steps_areFewAndRight();
    void anyListToAnyOther_endsAsWanted();
    void oneRowMovedAnywhere_costsOneStep();
    void manyRows_areQuick_data();
    void manyRows_areQuick();
};

void ListDiffTest::steps_areFewAndRight_data()
{
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<int>("steps");

    QTest::addRow("nothing at all") << QString() << QString() << 0;
    QTest::addRow("nothing changed") << u"ABC"_s << u"ABC"_s << 0;
    QTest::addRow("first rows") << QString() << u"ABC"_s << 3;
    QTest::addRow("prepend") << u"ABC"_s << u"XABC"_s << 1;
    QTest::addRow("insert") << u"ABC"_s << u"AXBC"_s << 1;
    QTest::addRow("append") << u"ABC"_s << u"ABCX"_s << 1;
    QTest::addRow("remove the first") << u"ABC"_s << u"BC"_s << 1;
    QTest::addRow("remove one") << u"ABC"_s << u"AC"_s << 1;
    QTest::addRow("remove the last") << u"ABC"_s << u"AB"_s << 1;
    QTest::addRow("move to the front") << u"ABCDE"_s << u"EABCD"_s << 1;
    QTest::addRow("move to the back") << u"ABCDE"_s << u"BCDEA"_s << 1;
    QTest::addRow("move down a little") << u"ABCDE"_s << u"ACDBE"_s << 1;
    QTest::addRow("move up a little") << u"ABCDE"_s << u"ADBCE"_s << 1;
    QTest::addRow("swap the ends") << u"ABCDE"_s << u"EBCDA"_s << 2;
    QTest::addRow("two move down") << u"ABCDE"_s << u"CDEAB"_s << 2;
    QTest::addRow("turn round") << u"ABCDE"_s << u"EDCBA"_s << 4;
    QTest::addRow("clear") << u"ABC"_s << QString() << 3;
    QTest::addRow("replace one") << u"ABC"_s << u"AXC"_s << 2;
    QTest::addRow("replace all") << u"ABC"_s << u"XYZ"_s << 6;
    QTest::addRow("some of everything") << u"ABCDE"_s << u"XEBA"_s << 5;
    QTest::addRow("one of two twins goes") << u"AA"_s << u"A"_s << 1;
    QTest::addRow("a twin comes") << u"AB"_s << u"ABA"_s << 1;
    QTest::addRow("twins part") << u"AAB"_s << u"ABA"_s << 1;
    QTest::addRow("all but one twin go") << u"AAAA"_s << u"A"_s << 3;
}

void ListDiffTest::steps_areFewAndRight()
{
    QFETCH(QString, shown);
    QFETCH(QString, wanted);
    QFETCH(int, steps);

    QVERIFY(afterSteps(ids(shown), ids(wanted)) == ids(wanted));
    QCOMPARE(static_cast<int>(diffRows(ids(shown), ids(wanted)).size()), steps);
}

void ListDiffTest::anyListToAnyOther_endsAsWanted()
{
    QRandomGenerator dice(1); // Repeats often: eight ids in lists of up to eleven.

    for (int round = 0; round < 20'000; ++round) {
        const auto shown = someIds(dice);
        const auto wanted = someIds(dice);
        QVERIFY(afterSteps(shown, wanted) == wanted);
    }
}

void ListDiffTest::oneRowMovedAnywhere_costsOneStep()
{
    const auto shown = manyIds(12);

    for (int from = 0; from < 12; ++from) {
        for (int to = 0; to < 12; ++to) {
            auto wanted = shown;
            wanted.erase(wanted.begin() + from);
            wanted.insert(wanted.begin() + to, shown.at(static_cast<std::size_t>(from)));

            QVERIFY(afterSteps(shown, wanted) == wanted);
            QCOMPARE(diffRows(shown, wanted).size(), from == to ? 0U : 1U);
        }
    }
}

void ListDiffTest::manyRows_areQuick_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<int>("steps");

    QTest::addRow("prepend") << u"prepend"_s << 1;
    QTest::addRow("remove one") << u"remove"_s << 1;
    QTest::addRow("first to last") << u"move"_s << 1;
    QTest::addRow("turn round") << u"reverse"_s << 99'999;
}

/// A square of 100,000 would run into the test's time limit.
void ListDiffTest::manyRows_areQuick()
{
    QFETCH(QString, change);
    QFETCH(int, steps);
    const auto shown = manyIds(100'000);
    auto wanted = shown;
    if (change == "prepend"_L1) {
        wanted.insert(wanted.begin(), idOf(-1));
    } else if (change == "remove"_L1) {
        wanted.erase(wanted.begin() + 50'000);
    } else if (change == "move"_L1) {
        std::rotate(wanted.begin(), wanted.begin() + 1, wanted.end());
    } else {
        std::ranges::reverse(wanted);
    }

    QCOMPARE(static_cast<int>(diffRows(shown, wanted).size()), steps);
}

QTEST_GUILESS_MAIN(ListDiffTest)
#include "tst_listdiff.moc"
