#include "views/symbols/symbol.h"

#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using quib::Symbol;
using quib::symbolImage;

class SymbolTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void image_isAsLargeAsItsSquareInPixels_data();
    void image_isAsLargeAsItsSquareInPixels();
    void image_hasOneColour();
    void image_ofAnUnknownName_isNull();
    void weight_thickensOutlines();
    void weight_leavesFilledSymbolsAlone();
    void homeSymbol_atTwelvePixels_isSevenRings();
    void waveform_atTwelvePixels_isBarsWithGaps();
    void upAndDown_leaveRoomBetweenThem_data();
    void upAndDown_leaveRoomBetweenThem();
    void smallParts_standApart_data();
    void smallParts_standApart();
    void value_lightsWholeBars_data();
    void value_lightsWholeBars();
    void isKnown_tellsNamesThatMeanSomething();
};

namespace {

/// The sum of what covers the picture, from 0 to 1.
double coverage(const QImage& image)
{
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            sum += qAlpha(image.pixel(x, y)) / 255.0;
        }
    }
    return sum / (image.width() * image.height());
}

/// Takes a bright patch and all that touches it off the picture.
void wipe(QImage& image, QPoint at)
{
    if (!image.rect().contains(at) || qAlpha(image.pixel(at)) < 100) {
        return;
    }
    image.setPixel(at, 0);
    for (int dy = -1; dy <= 1; ++dy) {
        for (int dx = -1; dx <= 1; ++dx) {
            wipe(image, at + QPoint(dx, dy));
        }
    }
}

int countPatches(QImage image)
{
    int patches = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) >= 100) {
                ++patches;
                wipe(image, {x, y});
            }
        }
    }
    return patches;
}

} // namespace

void SymbolTest::image_isAsLargeAsItsSquareInPixels_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("pixels");

    QTest::addRow("one to one") << 1.0 << 12;
    QTest::addRow("between") << 1.25 << 15;
    QTest::addRow("twice") << 2.0 << 24;
}

void SymbolTest::image_isAsLargeAsItsSquareInPixels()
{
    QFETCH(double, scale);
    QFETCH(int, pixels);

    const auto image = symbolImage({.name = u"circle"_s, .size = 12}, scale);

    QCOMPARE(image.size(), QSize(pixels, pixels));
    QVERIFY(qAlpha(image.pixel(0, pixels / 2)) > 100); // A circle goes from edge to edge.
    QVERIFY(qAlpha(image.pixel(pixels - 1, pixels / 2)) > 100);
    QCOMPARE(qAlpha(image.pixel(pixels / 2, pixels / 2)), 0);
}

void SymbolTest::image_hasOneColour()
{
    const QColor half(200, 100, 50, 128);
    const auto image
        = symbolImage({.name = u"xmark"_s, .size = 26, .weight = 600, .color = half}, 2);

    int strongest = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            strongest = std::max(strongest, qAlpha(image.pixel(x, y)));
            if (qAlpha(image.pixel(x, y)) > 100) {
                const auto seen = image.pixelColor(x, y);
                QVERIFY(qAbs(seen.red() - 200) < 3 && qAbs(seen.green() - 100) < 3);
            }
        }
    }
    QCOMPARE(strongest, 128);
}

void SymbolTest::image_ofAnUnknownName_isNull()
{
    QVERIFY(symbolImage({.name = u"no.such.symbol"_s}, 1).isNull());
    QVERIFY(symbolImage({.name = u"tray"_s, .size = 0}, 1).isNull());
}

void SymbolTest::weight_thickensOutlines()
{
    double before = 0;
    for (const int weight : {400, 500, 600, 700}) {
        const auto now
            = coverage(symbolImage({.name = u"tray"_s, .size = 26, .weight = weight}, 2));
        QVERIFY(now > before);
        before = now;
    }
}

void SymbolTest::weight_leavesFilledSymbolsAlone()
{
    const auto regular = symbolImage({.name = u"pin.fill"_s, .weight = 400}, 2);
    const auto bold = symbolImage({.name = u"pin.fill"_s, .weight = 700}, 2);

    QCOMPARE(bold, regular);
}

void SymbolTest::homeSymbol_atTwelvePixels_isSevenRings()
{
    const auto image = symbolImage({.name = u"circle.hexagongrid"_s, .size = 12, .weight = 600}, 1);

    QCOMPARE(countPatches(image), 7);
    const int hole = qAlpha(image.pixel(5, 5));
    QVERIFY(hole < 80);
    QVERIFY(qAlpha(image.pixel(4, 5)) > 2 * hole);
    QVERIFY(qAlpha(image.pixel(6, 5)) > 2 * hole);
}

void SymbolTest::waveform_atTwelvePixels_isBarsWithGaps()
{
    const auto image = symbolImage({.name = u"waveform"_s, .size = 12, .weight = 600}, 1);

    QVERIFY(countPatches(image) >= 5);
}

void SymbolTest::upAndDown_leaveRoomBetweenThem_data()
{
    QTest::addColumn<int>("pixels");

    for (const int pixels : {8, 10, 12, 16}) {
        QTest::addRow("%d", pixels) << pixels;
    }
}

/// Or the two would be a ring.
void SymbolTest::upAndDown_leaveRoomBetweenThem()
{
    QFETCH(const int, pixels);

    const auto image = symbolImage(
        {.name = u"chevron.up.chevron.down"_s, .size = double(pixels), .color = Qt::black}, 1);

    QCOMPARE(countPatches(image), 2);
    for (int x = 0; x < pixels; ++x) {
        QVERIFY(qAlpha(image.pixel(x, pixels / 2 - 1)) < 20);
        QVERIFY(qAlpha(image.pixel(x, pixels / 2)) < 20);
    }
}

void SymbolTest::smallParts_standApart_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("weight");
    QTest::addColumn<int>("pixels");
    QTest::addColumn<int>("parts");

    for (const int pixels : {12, 15, 18}) {
        QTest::addRow("two links, what joins them, a plus, %d", pixels)
            << u"link.badge.plus"_s << int(QFont::DemiBold) << pixels << 4;
    }
}

/// At the sizes of the tabs, in pixels of the scales.
void SymbolTest::smallParts_standApart()
{
    QFETCH(const QString, name);
    QFETCH(const int, weight);
    QFETCH(const int, pixels);
    QFETCH(const int, parts);

    const auto image = symbolImage(
        {.name = name, .size = double(pixels), .weight = weight, .color = Qt::black}, 1);

    QCOMPARE(countPatches(image), parts);
}

void SymbolTest::value_lightsWholeBars_data()
{
    QTest::addColumn<double>("scale");

    for (const double scale : {1.0, 1.25, 1.5, 2.0, 3.0}) {
        QTest::addRow("at %g", scale) << scale;
    }
}

void SymbolTest::value_lightsWholeBars()
{
    QFETCH(double, scale);
    quib::SymbolLook look{.name = u"waveform"_s, .size = 18, .weight = 600};
    const auto full = symbolImage(look, scale);

    for (int lit = 0; lit <= 7; ++lit) {
        look.value = lit / 7.0;
        const auto image = symbolImage(look, scale);
        double shares = 0; // How much of the bars is left.
        for (int x = 0; x < full.width(); ++x) {
            const double tall = coverage(full.copy(x, 0, 1, full.height()));
            const double now = coverage(image.copy(x, 0, 1, full.height()));
            const double share = tall > 0 ? now / tall : 0;
            QVERIFY(tall == 0 || share == 1 || qAbs(share - 0.4) < 0.02);
            const bool isInside = x > 0 && coverage(full.copy(x - 1, 0, 1, full.height())) > 0;
            QVERIFY(tall == 0 || !isInside || qAbs(share - shares) < 0.02);
            shares = share;
        }
        QCOMPARE(image == full, lit == 7);
    }
}

void SymbolTest::isKnown_tellsNamesThatMeanSomething()
{
    QVERIFY(Symbol::isKnown(u"tray"_s));
    QVERIFY(!Symbol::isKnown(u"no.such.symbol"_s));
}

QTEST_MAIN(SymbolTest)
#include "tst_symbol.moc"
