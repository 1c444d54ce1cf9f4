#include "model/texts/duration.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

class DurationTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void formatDuration_data();
    void formatDuration();
};

void DurationTest::formatDuration_data()
{
    QTest::addColumn<double>("seconds");
    QTest::addColumn<QString>("rough");
    QTest::addColumn<QString>("exact");

    QTest::addRow("nothing") << 0.0 << u"0m"_s << u"0:00"_s;
    QTest::addRow("less than nothing") << -5.0 << u"0m"_s << u"0:00"_s;
    QTest::addRow("a fraction is dropped") << 59.999 << u"0m"_s << u"0:59"_s;
    QTest::addRow("two minutes and five") << 125.0 << u"2m"_s << u"2:05"_s;
    QTest::addRow("just under an hour") << 3599.0 << u"59m"_s << u"59:59"_s;
    QTest::addRow("an hour") << 3600.0 << u"1h 0m"_s << u"1:00:00"_s;
    QTest::addRow("an hour, a minute, a second") << 3661.0 << u"1h 1m"_s << u"1:01:01"_s;
    QTest::addRow("hours with two digits") << 43500.0 << u"12h 5m"_s << u"12:05:00"_s;
    QTest::addRow("hours with three digits") << 360000.0 << u"100h 0m"_s << u"100:00:00"_s;
    QTest::addRow("no number") << std::numeric_limits<double>::quiet_NaN() << u"0m"_s << u"0:00"_s;
    QTest::addRow("without end") << std::numeric_limits<double>::infinity()
                                 << u"277777777777h 46m"_s << u"277777777777:46:40"_s;
}

void DurationTest::formatDuration()
{
    QFETCH(double, seconds);
    QFETCH(QString, rough);
    QFETCH(QString, exact);

    QCOMPARE(quib::formatDuration(seconds, false), rough);
    QCOMPARE(quib::formatDuration(seconds, true), exact);
}

QTEST_GUILESS_MAIN(DurationTest)
#include "tst_duration.moc"
