#include "model/billing/totals.h"

#include "model/time/utc.h"

#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

QUuid idOf(int number)
{
    return QUuid::createUuidV5(QUuid(), QByteArray::number(number));
}

/// Monday, so many minutes after eight.
QDateTime monday(int minutes)
{
    return QDateTime(QDate(2026, 3, 2), QTime(8, 0), quib::Utc).addSecs(minutes * 60LL);
}

quib::TimeEntry entry(const std::optional<QUuid>& client, int start, std::optional<int> end)
{
    return {.id = QUuid::createUuid(),
            .clientID = client,
            .start = monday(start),
            .end = end ? std::optional(monday(*end)) : std::nullopt};
}

/// "Bloom 60, - 5": names and minutes in order, "-" without a client.
QString text(const QList<quib::ClientTotal>& totals)
{
    QStringList parts;
    for (const auto& total : totals) {
        const auto name = total.client ? total.client->name : u"-"_s;
        parts << u"%1 %2"_s.arg(name).arg(total.seconds / 60);
    }
    return parts.join(u", "_s);
}

const QList<quib::Client> Clients{{.id = idOf(1), .name = u"Bloom"_s},
                                  {.id = idOf(2), .name = u"Corner"_s}};

} // namespace

class TotalsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void totals_data();
    void totals();
};

void TotalsTest::totals_data()
{
    QTest::addColumn<QList<quib::TimeEntry>>("entries");
    QTest::addColumn<QString>("expected"); // Since 9:00; now it is 10:00.

    using Entries = QList<quib::TimeEntry>;
    QTest::addRow("nothing") << Entries{} << QString();
    QTest::addRow("8:00 to 10:00 counts from 9:00")
        << Entries{entry(idOf(1), 0, 120)} << u"Bloom 60"_s;
    QTest::addRow("ended before") << Entries{entry(idOf(1), 0, 59)} << QString();
    QTest::addRow("ended right then") << Entries{entry(idOf(1), 0, 60)} << u"Bloom 0"_s;
    QTest::addRow("runs since before") << Entries{entry(idOf(1), 0, {})} << u"Bloom 60"_s;
    QTest::addRow("runs since 9:50") << Entries{entry(idOf(1), 110, {})} << u"Bloom 10"_s;
    QTest::addRow("starts later than now") << Entries{entry(idOf(1), 130, {})} << u"Bloom -10"_s;
    QTest::addRow("ends later than now") << Entries{entry(idOf(1), 60, 180)} << u"Bloom 120"_s;
    QTest::addRow("ends before it starts")
        << Entries{entry(idOf(1), 90, 80), entry(idOf(1), 60, 90)} << u"Bloom 20"_s;
    QTest::addRow("most first") << Entries{entry(idOf(1), 60, 70), entry(idOf(2), 70, 100)}
                                << u"Corner 30, Bloom 10"_s;
    QTest::addRow("equal ones stay in order")
        << Entries{entry(idOf(2), 60, 70), entry(idOf(1), 70, 80)} << u"Corner 10, Bloom 10"_s;
    QTest::addRow("scattered entries of one client")
        << Entries{entry(idOf(1), 60, 70), entry(idOf(2), 70, 71), entry(idOf(1), 80, 90),
                   entry(idOf(1), 90, {})}
        << u"Bloom 50, Corner 1"_s;
    QTest::addRow("unassigned and each deleted client apart")
        << Entries{entry({}, 60, 90), entry(idOf(8), 60, 80), entry(idOf(9), 60, 70),
                   entry({}, 60, 61), entry(idOf(9), 60, 61)}
        << u"- 31, - 20, - 11"_s;
    QTest::addRow("an id of zeros is no unassigned time")
        << Entries{entry({}, 60, 90), entry(QUuid(), 60, 80)} << u"- 30, - 20"_s;
}

void TotalsTest::totals()
{
    QFETCH(QList<quib::TimeEntry>, entries);
    QFETCH(QString, expected);

    QCOMPARE(text(quib::Tally(entries, monday(60)).totals(Clients, monday(120))), expected);
}

QTEST_GUILESS_MAIN(TotalsTest)
#include "tst_totals.moc"
