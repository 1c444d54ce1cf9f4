#include "picker/placing.h"

#include <QTest>

using quib::placeClearOf;

class PlacingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void window_isBelowTheCardWhereThereIsRoom_data();
    void window_isBelowTheCardWhereThereIsRoom();
    void tooSmallAScreen_takesTheMiddle();
    void noCard_takesTheMiddle();
};

void PlacingTest::window_isBelowTheCardWhereThereIsRoom_data()
{
    QTest::addColumn<QRect>("available");

    QTest::addRow("1920 x 1080 with a bar") << QRect(0, 30, 1920, 1050);
    QTest::addRow("1366 x 768") << QRect(0, 0, 1366, 768);
    QTest::addRow("1024 x 600") << QRect(0, 0, 1024, 600);
    QTest::addRow("right of another screen") << QRect(1920, 0, 2560, 1440);
}

void PlacingTest::window_isBelowTheCardWhereThereIsRoom()
{
    QFETCH(QRect, available);
    const QRect card(available.center().x() - 350, available.top(), 700, 290);

    const auto place = placeClearOf(card, available, {760, 480});

    QVERIFY(available.contains(place));
    QVERIFY(!place.intersects(card));
    QVERIFY(qAbs(place.center().x() - available.center().x()) <= 1);
    QVERIFY(place.height() <= 480);
}

void PlacingTest::tooSmallAScreen_takesTheMiddle()
{
    const QRect available(0, 0, 800, 480);

    const auto place = placeClearOf({50, 0, 700, 290}, available, {760, 480});

    QVERIFY(available.contains(place));
    QVERIFY(place.height() >= 400); // Large enough to be used, over the card.
}

void PlacingTest::noCard_takesTheMiddle()
{
    const QRect available(0, 0, 1600, 900);

    QVERIFY(available.contains(placeClearOf({}, available, {760, 480})));
}

QTEST_APPLESS_MAIN(PlacingTest)
#include "tst_placing.moc"
