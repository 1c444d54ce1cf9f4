#include "model/time/isodate.h"

#include "model/time/utc.h"

#include <QTest>
#include <QTimeZone>

using namespace Qt::StringLiterals;
using quib::isoDate;
using quib::parseIsoDate;
using quib::Utc;

namespace {

QByteArray textOf(const QDateTime& moment)
{
    const auto text = isoDate(moment);
    return text ? QByteArray(text->data(), static_cast<qsizetype>(text->size())) : QByteArray();
}

std::optional<QDateTime> parsed(const QByteArray& text)
{
    return parseIsoDate({text.constData(), static_cast<std::size_t>(text.size())});
}

} // namespace

class IsoDateTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void moment_isWrittenInUtcWithWholeSeconds_data();
    void moment_isWrittenInUtcWithWholeSeconds();
    void text_isReadExactly_data();
    void text_isReadExactly();
    void otherForms_areNoDate_data();
    void otherForms_areNoDate();
    void everyDay_isReadBack();
};

void IsoDateTest::moment_isWrittenInUtcWithWholeSeconds_data()
{
    QTest::addColumn<QDateTime>("moment");
    QTest::addColumn<QByteArray>("text");

    const QDate day(2026, 3, 2);
    QTest::addRow("UTC") << QDateTime(day, QTime(9, 15), Utc) << "2026-03-02T09:15:00Z"_ba;
    QTest::addRow("the second below")
        << QDateTime(day, QTime(23, 59, 59, 999), Utc) << "2026-03-02T23:59:59Z"_ba;
    QTest::addRow("the second below, before 1970")
        << QDateTime::fromMSecsSinceEpoch(-1, Utc) << "1969-12-31T23:59:59Z"_ba;
    QTest::addRow("another zone") << QDateTime(day, QTime(1, 0), QTimeZone(7200))
                                  << "2026-03-01T23:00:00Z"_ba;
    QTest::addRow("a leap day") << QDateTime(QDate(2024, 2, 29), QTime(0, 0), Utc)
                                << "2024-02-29T00:00:00Z"_ba;
    QTest::addRow("the last year")
        << QDateTime(QDate(9999, 12, 31), QTime(0, 0), Utc) << "9999-12-31T00:00:00Z"_ba;
    QTest::addRow("the year 10000")
        << QDateTime(QDate(10000, 1, 1), QTime(0, 0), Utc) << QByteArray();
    QTest::addRow("before all years")
        << QDateTime(QDate(-2, 1, 1), QTime(0, 0), Utc) << QByteArray();
    QTest::addRow("no moment") << QDateTime() << QByteArray();
}

void IsoDateTest::moment_isWrittenInUtcWithWholeSeconds()
{
    QFETCH(QDateTime, moment);
    QFETCH(QByteArray, text);

    QCOMPARE(textOf(moment), text);
}

void IsoDateTest::text_isReadExactly_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QDateTime>("moment");

    QTest::addRow("a moment") << "2026-03-02T09:15:01Z"_ba
                              << QDateTime(QDate(2026, 3, 2), QTime(9, 15, 1), Utc);
    QTest::addRow("a leap day") << "2000-02-29T23:59:59Z"_ba
                                << QDateTime(QDate(2000, 2, 29), QTime(23, 59, 59), Utc);
}

void IsoDateTest::text_isReadExactly()
{
    QFETCH(QByteArray, text);
    QFETCH(QDateTime, moment);

    QCOMPARE(parsed(text), std::optional(moment));
    QCOMPARE(parsed(text)->timeSpec(), Qt::UTC);
}

void IsoDateTest::otherForms_areNoDate_data()
{
    QTest::addColumn<QByteArray>("text");

    for (const auto* text : {"",
                             "2026-03-02",
                             "2026-03-02T09:15:00",
                             "2026-03-02T09:15:00.5Z",
                             "2026-03-02T09:15:00.000Z",
                             "2026-03-02T09:15:00+00:00",
                             "2026-03-02T09:15:00z",
                             "2026-03-02t09:15:00Z",
                             "2026-03-02 09:15:00Z",
                             "20260302T091500Z",
                             "2026-03-02T09:15Z",
                             "2026-02-29T09:15:00Z",
                             "1900-02-29T09:15:00Z",
                             "2026-04-31T09:15:00Z",
                             "2026-13-01T09:15:00Z",
                             "2026-00-01T09:15:00Z",
                             "2026-01-00T09:15:00Z",
                             "2026-03-02T24:00:00Z",
                             "2026-03-02T09:60:00Z",
                             "2026-03-02T09:15:60Z",
                             " 2026-03-02T09:15:00Z",
                             "2026-03-02T09:15:00Z ",
                             "+026-03-02T09:15:00Z",
                             "2026-3-002T09:15:00Z",
                             "2026-03-02T09:15:-1Z"}) {
        QTest::addRow("'%s'", text) << QByteArray(text);
    }
    QTest::addRow("a NUL in it") << QByteArray("2026-03-02T09:15:0\0Z", 20);
}

void IsoDateTest::otherForms_areNoDate()
{
    QFETCH(QByteArray, text);

    QVERIFY(!parsed(text));
}

void IsoDateTest::everyDay_isReadBack()
{
    for (QDate day(1890, 1, 1); day.year() < 2110; day = day.addDays(1)) {
        const auto noon = QDateTime(day, QTime(12, 34, 56), Utc);

        QCOMPARE(textOf(noon), noon.toString(Qt::ISODate).toLatin1());
        QCOMPARE(parsed(textOf(noon)), std::optional(noon));
    }
}

QTEST_GUILESS_MAIN(IsoDateTest)
#include "tst_isodate.moc"
