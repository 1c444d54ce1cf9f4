#include "app/notch/geometry.h"

#include <QTest>

using quib::Screen;

namespace {

/// A screen without a notch and with a bar of 30 points at its top.
const Screen Plain{.frame = {0, 0, 1920, 1080}, .visibleFrame = {0, 30, 1920, 1050}};

const Screen Notched{.frame = {1920, 0, 1512, 982},
                     .visibleFrame = {1920, 37, 1512, 945},
                     .topInset = 37,
                     .leftStrip = 662,
                     .rightStrip = 662};

Screen asMain(Screen screen)
{
    screen.isMain = true;
    return screen;
}

Screen at(double left)
{
    auto screen = Plain;
    screen.frame.moveLeft(left);
    return screen;
}

} // namespace

class GeometryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void chooseScreen_data();
    void chooseScreen();
    void notchOf_data();
    void notchOf();
    void panel_hangsAtTheTopCentre();
    void expandedRect_isTheCardAndAMarginBeyondTheEdge();
    void collapsedRect_data();
    void collapsedRect();
    void topEdgeOfTheScreen_isInsideBothRectangles();
};

void GeometryTest::chooseScreen_data()
{
    QTest::addColumn<QList<Screen>>("screens");
    QTest::addColumn<std::optional<double>>("left");

    using Screens = QList<Screen>;
    using Left = std::optional<double>;
    QTest::addRow("none") << Screens{} << Left{};
    QTest::addRow("one") << Screens{at(0)} << Left{0};
    QTest::addRow("the main one") << Screens{at(0), asMain(at(1920))} << Left{1920};
    QTest::addRow("the first where none is the main one") << Screens{at(5), at(1920)} << Left{5};
    QTest::addRow("the notched one, though another is first and the main one")
        << Screens{asMain(at(0)), Notched} << Left{1920};
}

void GeometryTest::chooseScreen()
{
    QFETCH(QList<Screen>, screens);
    QFETCH(std::optional<double>, left);

    const auto chosen = quib::chooseScreen(screens);

    QCOMPARE(chosen.has_value(), left.has_value());
    if (chosen) {
        QCOMPARE(chosen->frame.left(), *left);
    }
}

void GeometryTest::notchOf_data()
{
    QTest::addColumn<Screen>("screen");
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<bool>("isReal");

    auto bare = Plain;
    bare.visibleFrame = bare.frame;
    auto smallBar = Plain;
    smallBar.visibleFrame.setTop(24);
    auto oneStrip = Notched;
    oneStrip.rightStrip.reset();
    QTest::addRow("no bar") << bare << QSizeF(190, 24) << false;
    QTest::addRow("a bar of 24") << smallBar << QSizeF(190, 24) << false;
    QTest::addRow("a taller bar") << Plain << QSizeF(190, 30) << false;
    QTest::addRow("a real notch") << Notched << QSizeF(188, 37) << true;
    QTest::addRow("a notch with one strip unknown") << oneStrip << QSizeF(190, 37) << false;
}

void GeometryTest::notchOf()
{
    QFETCH(Screen, screen);
    QFETCH(QSizeF, size);
    QFETCH(bool, isReal);

    QCOMPARE(quib::notchOf(screen), (quib::Notch{.size = size, .isReal = isReal}));
}

void GeometryTest::panel_hangsAtTheTopCentre()
{
    auto screen = Plain;
    screen.frame = {100, 50, 1600, 900};

    QCOMPARE(quib::panelFrame(screen), QRectF(900 - 380, 50, 760, 330));
}

void GeometryTest::expandedRect_isTheCardAndAMarginBeyondTheEdge()
{
    auto screen = Plain;
    screen.frame = {100, 50, 1600, 900};

    QCOMPARE(quib::expandedRect(screen),
             QRectF(QPointF(900 - 354, 50 - 14), QPointF(900 + 354, 50 + 294)));
}

void GeometryTest::collapsedRect_data()
{
    QTest::addColumn<bool>("timerRuns");
    QTest::addColumn<double>("width");

    QTest::addRow("no timer") << false << 190.0 + 30;
    QTest::addRow("a timer's wings") << true << 190.0 + 214;
}

void GeometryTest::collapsedRect()
{
    QFETCH(bool, timerRuns);
    QFETCH(double, width);
    auto screen = Plain;
    screen.frame = {100, 50, 1600, 900};

    QCOMPARE(quib::collapsedRect(screen, {190, 24}, timerRuns),
             QRectF(900 - width / 2, 50 - 10, width, 24 + 16));
}

void GeometryTest::topEdgeOfTheScreen_isInsideBothRectangles()
{
    const QPointF edge(Plain.frame.center().x(), 0);

    QVERIFY(quib::expandedRect(Plain).contains(edge));
    QVERIFY(quib::collapsedRect(Plain, {190, 24}, false).contains(edge));
}

QTEST_APPLESS_MAIN(GeometryTest)
#include "tst_geometry.moc"
