#include "views/shapes/continuouspath.h"
#include "views/shapes/continuousrectangle.h"

#include <QQuickWindow>
#include <QTest>

#include <cmath>

using quib::continuousPath;
using quib::ContinuousRectangle;

class ContinuousRectangleTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void path_touchesAllFourEdges();
    void corner_passesWhereTheCircleDoes();
    void corner_leavesTheEdgeEarlierThanACircle();
    void radiusOfHalfTheHeight_givesACapsule_data();
    void radiusOfHalfTheHeight_givesACapsule();
    void noRadius_givesARectangle();
    void fill_coversTheShapeAndNothingElse();
    void stroke_liesInsideTheShape();
    void gradient_mayBeginClear();
    void withoutColours_nothingIsDrawn();
};

namespace {

constexpr QRectF Wide(0, 0, 200, 100);

/// How far from the top edge the shape begins at an x.
double depth(const QPainterPath& path, double x)
{
    double y = 0;
    while (y < 100 && !path.contains(QPointF(x, y))) {
        y += 0.01;
    }
    return y;
}

/// 48 by 46 points with corners of 14, alone on black.
QImage drawn(const QColor& fill, const QColor& stroke, const QColor& lower = {})
{
    QQuickWindow window;
    window.resize(60, 60);
    window.setColor(Qt::black);
    ContinuousRectangle rectangle;
    rectangle.setParentItem(window.contentItem());
    rectangle.setPosition({6, 6});
    rectangle.setSize({48, 46});
    rectangle.setRadius(14);
    rectangle.setColor(fill);
    rectangle.setLowerColor(lower);
    rectangle.setStrokeColor(stroke);
    window.show();
    return window.grabWindow();
}

} // namespace

void ContinuousRectangleTest::path_touchesAllFourEdges()
{
    const auto box = continuousPath(Wide, 14).boundingRect();

    QVERIFY(qAbs(box.left()) < 1e-9 && qAbs(box.top()) < 1e-9);
    QVERIFY(qAbs(box.right() - 200) < 1e-9 && qAbs(box.bottom() - 100) < 1e-9);
}

void ContinuousRectangleTest::corner_passesWhereTheCircleDoes()
{
    const auto path = continuousPath(Wide, 14);
    const double onTheCircle = 14 * (1 - std::sqrt(0.5));

    QVERIFY(!path.contains(QPointF(onTheCircle - 0.05, onTheCircle - 0.05)));
    QVERIFY(path.contains(QPointF(onTheCircle + 0.05, onTheCircle + 0.05)));
}

void ContinuousRectangleTest::corner_leavesTheEdgeEarlierThanACircle()
{
    const auto path = continuousPath(Wide, 14);

    QVERIFY(depth(path, 16) > 0.02); // A circle of 14 would have ended at 14.
    QVERIFY(depth(path, 22) < 0.02);
}

void ContinuousRectangleTest::radiusOfHalfTheHeight_givesACapsule_data()
{
    QTest::addColumn<double>("radius");

    QTest::addRow("half the height") << 50.0;
    QTest::addRow("more") << 1000.0;
}

void ContinuousRectangleTest::radiusOfHalfTheHeight_givesACapsule()
{
    QFETCH(double, radius);

    const auto path = continuousPath(Wide, radius);

    for (const double x : {5.0, 15.0, 30.0, 45.0}) {
        const double circle = 50 - std::sqrt(50 * 50 - (50 - x) * (50 - x));
        QVERIFY(qAbs(depth(path, x) - circle) < 0.15);
    }
}

void ContinuousRectangleTest::noRadius_givesARectangle()
{
    QVERIFY(continuousPath(Wide, 0).contains(QPointF(0.1, 0.1)));
    QVERIFY(continuousPath(Wide, -3).contains(QPointF(199.9, 99.9)));
}

void ContinuousRectangleTest::fill_coversTheShapeAndNothingElse()
{
    const auto image = drawn(Qt::white, Qt::transparent);

    QCOMPARE(image.pixelColor(30, 29), QColor(Qt::white));
    QCOMPARE(image.pixelColor(30, 6), QColor(Qt::white));
    QCOMPARE(image.pixelColor(30, 51), QColor(Qt::white));
    QCOMPARE(image.pixelColor(30, 5), QColor(Qt::black));
    QCOMPARE(image.pixelColor(30, 52), QColor(Qt::black));
    QCOMPARE(image.pixelColor(6, 6), QColor(Qt::black));
    QCOMPARE(image.pixelColor(53, 51), QColor(Qt::black));
}

void ContinuousRectangleTest::stroke_liesInsideTheShape()
{
    const auto image = drawn(Qt::transparent, Qt::white);

    QCOMPARE(image.pixelColor(30, 6), QColor(Qt::white));
    QCOMPARE(image.pixelColor(6, 29), QColor(Qt::white));
    QCOMPARE(image.pixelColor(30, 5), QColor(Qt::black));
    QCOMPARE(image.pixelColor(30, 7), QColor(Qt::black));
    QCOMPARE(image.pixelColor(7, 29), QColor(Qt::black));
}

void ContinuousRectangleTest::gradient_mayBeginClear()
{
    const auto image = drawn(Qt::transparent, Qt::transparent, Qt::white);

    QVERIFY(image.pixelColor(48, 46).red() > 150);
    QVERIFY(image.pixelColor(12, 12).red() < 60);
}

void ContinuousRectangleTest::withoutColours_nothingIsDrawn()
{
    QImage black(60, 60, QImage::Format_RGB32);
    black.fill(Qt::black);

    const auto image = drawn(Qt::transparent, Qt::transparent);

    QCOMPARE(image.convertToFormat(QImage::Format_RGB32), black);
}

QTEST_MAIN(ContinuousRectangleTest)
#include "tst_continuousrectangle.moc"
