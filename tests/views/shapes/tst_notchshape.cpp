#include "views/shapes/notchshape.h"

#include <QImage>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>

using quib::NotchShape;

namespace {

/// Both ends and the control points of every piece, in order.
QList<QPointF> points(const QPainterPath& path)
{
    QList<QPointF> found;
    for (int i = 0; i < path.elementCount(); ++i) {
        found << path.elementAt(i);
    }
    return found;
}

QPointF quadControl(const QPainterPath& path, int curve)
{
    // A painter path keeps a quadratic curve as a cubic one: its first control point lies two
    // thirds of the way to ours.
    const QPointF start = path.elementAt(curve - 1);
    const QPointF first = path.elementAt(curve);
    return start + (first - start) * 1.5;
}

} // namespace

class NotchShapeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void path_goesRoundTheNotch();
    void flare_isHalfTheRadiusAtMostEight_data();
    void flare_isHalfTheRadiusAtMostEight();
    void collapsedOverANotch_overhangsByFive();
    void changes_areToldToWhoFollowsThePath();
    void picture_isBlackWithItsLine();
};

void NotchShapeTest::path_goesRoundTheNotch()
{
    const auto path = quib::notchPath({0, 0, 700, 290}, 26);
    const auto all = points(path);

    QCOMPARE(all.size(), 1 + 3 + 1 + 3 + 1 + 3 + 1 + 3 + 1);
    QCOMPARE(all.at(0), QPointF(0, 0));
    QCOMPARE(quadControl(path, 1), QPointF(8, 0));
    QCOMPARE(all.at(3), QPointF(8, 8));
    QCOMPARE(all.at(4), QPointF(8, 264));
    QCOMPARE(quadControl(path, 5), QPointF(8, 290));
    QCOMPARE(all.at(7), QPointF(34, 290));
    QCOMPARE(all.at(8), QPointF(666, 290));
    QCOMPARE(quadControl(path, 9), QPointF(692, 290));
    QCOMPARE(all.at(11), QPointF(692, 264));
    QCOMPARE(all.at(12), QPointF(692, 8));
    QCOMPARE(quadControl(path, 13), QPointF(692, 0));
    QCOMPARE(all.at(15), QPointF(700, 0));
    QCOMPARE(all.at(16), QPointF(0, 0));
}

void NotchShapeTest::flare_isHalfTheRadiusAtMostEight_data()
{
    QTest::addColumn<double>("radius");
    QTest::addColumn<double>("flare");

    QTest::addRow("collapsed") << 10.0 << 5.0;
    QTest::addRow("on the way") << 16.0 << 8.0;
    QTest::addRow("expanded") << 26.0 << 8.0;
}

void NotchShapeTest::flare_isHalfTheRadiusAtMostEight()
{
    QFETCH(double, radius);
    QFETCH(double, flare);

    QCOMPARE(points(quib::notchPath({0, 0, 700, 290}, radius)).at(3), QPointF(flare, flare));
}

void NotchShapeTest::collapsedOverANotch_overhangsByFive()
{
    const auto path = quib::notchPath({0, 0, 198, 37}, 10);

    QCOMPARE(path.boundingRect(), QRectF(0, 0, 198, 37));
    QCOMPARE(points(path).at(4), QPointF(5, 27));
}

void NotchShapeTest::changes_areToldToWhoFollowsThePath()
{
    NotchShape shape;
    shape.setSize({200, 24});
    const QSignalSpy changes(&shape, &NotchShape::pathChanged);

    shape.setRadius(10);
    shape.setRadius(10);
    shape.setSize({384, 24});
    shape.setOutline(Qt::red);

    QCOMPARE(changes.count(), 2);
    QCOMPARE(shape.pathInScene(), quib::notchPath({0, 0, 384, 24}, 10));
}

void NotchShapeTest::picture_isBlackWithItsLine()
{
    NotchShape shape;
    shape.setSize({200, 60});
    shape.setRadius(26);
    shape.setOutline(Qt::red);
    QImage image(200, 60, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);

    QPainter painter(&image);
    shape.paint(&painter);

    QCOMPARE(image.pixelColor(100, 30), QColor(Qt::black));
    QCOMPARE(image.pixelColor(2, 55).alpha(), 0);
    QVERIFY(image.pixelColor(8, 20).red() > 100);
}

QTEST_MAIN(NotchShapeTest)
#include "tst_notchshape.moc"
