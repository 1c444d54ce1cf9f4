#include "views/models/listdiff.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using quib::diffRows;
using quib::RowStep;

namespace {

using Rows = QList<int>;

Rows rowsOf(const QString& letters)
{
    Rows out;
    std::ranges::transform(letters, std::back_inserter(out),
                           [](QChar letter) { return letter.unicode(); });
    return out;
}

auto stepsBetween(const Rows& shown, const Rows& wanted)
{
    return diffRows(shown, wanted, std::identity());
}

/// What a view does with a step. Rows are checked, as a model of Qt's would.
void apply(const RowStep& step, Rows& rows, const Rows& wanted)
{
    switch (step.kind) {
    case RowStep::Kind::Remove:
        QVERIFY(step.row >= 0 && step.row < std::ssize(rows));
        rows.erase(rows.begin() + step.row);
        return;
    case RowStep::Kind::Insert:
        QVERIFY(step.row >= 0 && step.row <= std::ssize(rows));
        rows.insert(rows.begin() + step.row, wanted.at(step.source));
        return;
    case RowStep::Kind::Move: {
        QVERIFY(step.row != step.source);
        QVERIFY(std::max(step.row, step.source) < std::ssize(rows));
        const auto id = rows.at(step.source);
        rows.erase(rows.begin() + step.source);
        rows.insert(rows.begin() + step.row, id);
        return;
    }
    }
}

/// `shown` after the steps to `wanted`.
Rows afterSteps(Rows shown, const Rows& wanted)
{
    for (const auto& step : stepsBetween(shown, wanted)) {
        apply(step, shown, wanted);
    }
    return shown;
}

Rows manyRows(int count)
{
    Rows out(count);
    std::ranges::generate(out, [number = 0]() mutable { return number++; });
    return out;
}

Rows someRows(QRandomGenerator& dice)
{
    Rows out(dice.bounded(12));
    std::ranges::generate(out, [&] { return dice.bounded(8); });
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
    void manyRowsTurnedRound_keepTheirNumber();
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
    QTest::addRow("two move down") << u"ABCDE"_s << u"CDEAB"_s << 3;
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

    QVERIFY(afterSteps(rowsOf(shown), rowsOf(wanted)) == rowsOf(wanted));
    QCOMPARE(static_cast<int>(stepsBetween(rowsOf(shown), rowsOf(wanted)).size()), steps);
}

void ListDiffTest::anyListToAnyOther_endsAsWanted()
{
    QRandomGenerator dice(1); // Repeats often: eight ids in lists of up to eleven.

    for (int round = 0; round < 20'000; ++round) {
        const auto shown = someRows(dice);
        const auto wanted = someRows(dice);
        QVERIFY(afterSteps(shown, wanted) == wanted);
    }
}

void ListDiffTest::oneRowMovedAnywhere_costsOneStep()
{
    const auto shown = manyRows(12);

    for (int from = 0; from < 12; ++from) {
        for (int to = 0; to < 12; ++to) {
            auto wanted = shown;
            wanted.erase(wanted.begin() + from);
            wanted.insert(wanted.begin() + to, shown.at(from));

            QVERIFY(afterSteps(shown, wanted) == wanted);
            QCOMPARE(stepsBetween(shown, wanted).size(), from == to ? 0U : 1U);
        }
    }
}

void ListDiffTest::manyRows_areQuick_data()
{
    QTest::addColumn<QString>("change");

    QTest::addRow("prepend") << u"prepend"_s;
    QTest::addRow("remove one") << u"remove"_s;
    QTest::addRow("first to last") << u"move"_s;
}

/// A square of 100,000 would run into the test's time limit.
void ListDiffTest::manyRows_areQuick()
{
    QFETCH(QString, change);
    const auto shown = manyRows(100'000);
    auto wanted = shown;
    if (change == "prepend"_L1) {
        wanted.prepend(-1);
    } else if (change == "remove"_L1) {
        wanted.removeAt(50'000);
    } else {
        wanted.move(0, wanted.size() - 1);
    }

    QCOMPARE(stepsBetween(shown, wanted).size(), 1U);
}

/// Costs the square of their number; no list of ours is turned round while it is shown.
void ListDiffTest::manyRowsTurnedRound_keepTheirNumber()
{
    const auto shown = manyRows(1024);
    const Rows wanted(shown.rbegin(), shown.rend());

    QVERIFY(afterSteps(shown, wanted) == wanted);
    QCOMPARE(stepsBetween(shown, wanted).size(), 1023U);
}

QTEST_GUILESS_MAIN(ListDiffTest)
#include "tst_listdiff.moc"
