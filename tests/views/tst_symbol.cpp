#include "views/symbol.h"
#include "views/symbollibrary.h"

#include <QFile>
#include <QQuickWindow>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using quib::findSymbol;
using quib::Symbol;
using quib::symbolImage;

class SymbolTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyAliasOfTheTable_hasAPath_data();
    void everyAliasOfTheTable_hasAPath();
    void findSymbol_knows_data();
    void findSymbol_knows();
    void findSymbol_doesNotKnow_data();
    void findSymbol_doesNotKnow();
    void fill_isTheFilledIcon();
    void fill_ofAnIconWithoutOne_isItsOutline();
    void framed_isSmallWithinARing();
    void framedAndFilled_isCutOut();
    void badge_leavesAGapAroundIt();
    void pathsFillTheirSquare_data();
    void pathsFillTheirSquare();

    void image_isAsLargeAsItsSquareInPixels_data();
    void image_isAsLargeAsItsSquareInPixels();
    void image_hasOneColour();
    void image_ofAnUnknownName_isNull();
    void weight_thickensOutlines();
    void weight_leavesFilledSymbolsAlone();
    void homeSymbol_atTwelvePixels_isSevenRings();
    void waveform_atTwelvePixels_isBarsWithGaps();

    void item_takesTheSizeOfTheSymbol();
    void item_betweenTwoPixels_goesToOne();
    void item_drawsOnlyWhatHasChanged();
};

namespace {

bool liesInTheSquare(const QPainterPath& path)
{
    return QRectF(-0.05, -0.05, 1.1, 1.1).contains(path.boundingRect());
}

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

class CountedSymbol : public Symbol {
public:
    using Symbol::Symbol;

    mutable int drawn = 0;

protected:
    QImage picture(double pixelsPerPoint) const override
    {
        ++drawn;
        return Symbol::picture(pixelsPerPoint);
    }
};

/// A symbol in a window of its own.
struct Shown {
    QQuickWindow window;
    CountedSymbol symbol;

    Shown()
    {
        window.resize(60, 60);
        window.setColor(Qt::black);
        symbol.setParentItem(window.contentItem());
        symbol.setPosition({10, 10});
        symbol.setName(u"tray"_s);
        window.show();
    }
};

} // namespace

void SymbolTest::everyAliasOfTheTable_hasAPath_data()
{
    QTest::addColumn<QString>("name");

    QFile file(u":/quib/symbols/symbol-aliases.tsv"_s);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const auto lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    QVERIFY(lines.size() > 150);
    for (const auto& line : lines) {
        const auto name = line.section(u'\t', 0, 0);
        QTest::addRow("%s", qPrintable(name)) << name;
    }
}

void SymbolTest::everyAliasOfTheTable_hasAPath()
{
    QFETCH(QString, name);

    const auto shape = findSymbol(name);

    QVERIFY(shape);
    QVERIFY(!shape->path.isEmpty());
    QVERIFY(liesInTheSquare(shape->path));
}

void SymbolTest::findSymbol_knows_data()
{
    QTest::addColumn<QString>("name");

    for (const auto& name : {u"circle.hexagongrid"_s,
                             u"circle.hexagongrid.fill"_s,
                             u"square.grid.2x2"_s,
                             u"person.2"_s,
                             u"person.2.fill"_s,
                             u"checklist"_s,
                             u"stopwatch"_s,
                             u"tray"_s,
                             u"note.text"_s,
                             u"pin"_s,
                             u"pin.fill"_s,
                             u"checkmark.circle.fill"_s,
                             u"circle"_s,
                             u"xmark"_s,
                             u"chevron.up.chevron.down"_s,
                             u"waveform"_s,
                             u"clock.badge"_s,
                             u"link.badge.plus"_s,
                             u"sterlingsign.circle"_s,
                             u"ellipsis.circle"_s,
                             u"play.fill"_s,
                             u"pause.fill"_s,
                             u"stop.fill"_s,
                             u"backward.fill"_s,
                             u"forward.fill"_s,
                             u"globe"_s,
                             u"folder"_s,
                             u"pencil"_s,
                             u"slider.horizontal.3"_s,
                             u"app.badge"_s,
                             u"safari"_s,
                             u"tray.and.arrow.down"_s,
                             u"square.and.arrow.up"_s,
                             u"sterlingsign.circle.fill"_s,
                             u"star.square"_s,
                             u"folder.badge.plus"_s}) {
        QTest::addRow("%s", qPrintable(name)) << name;
    }
}

void SymbolTest::findSymbol_knows()
{
    QFETCH(QString, name);

    const auto shape = findSymbol(name);

    QVERIFY(shape);
    QVERIFY(!shape->path.isEmpty());
    QVERIFY(Symbol::isKnown(name));
}

void SymbolTest::findSymbol_doesNotKnow_data()
{
    QTest::addColumn<QString>("name");

    QTest::addRow("no name") << QString();
    QTest::addRow("no such word") << u"no.such.symbol"_s;
    QTest::addRow("only a suffix") << u".fill"_s;
    QTest::addRow("a frame round nothing") << u".circle"_s;
    QTest::addRow("a frame round no such word") << u"no.such.symbol.circle.fill"_s;
    QTest::addRow("a path") << u"../../../etc/passwd"_s;
    QTest::addRow("frames without end") << u"x"_s + u".circle"_s.repeated(100'000);
}

void SymbolTest::findSymbol_doesNotKnow()
{
    QFETCH(QString, name);

    QVERIFY(!findSymbol(name));
    QVERIFY(!Symbol::isKnown(name));
}

void SymbolTest::fill_isTheFilledIcon()
{
    const auto outline = findSymbol(u"tray"_s);
    const auto filled = findSymbol(u"tray.fill"_s);

    QVERIFY(!outline->isFilled);
    QVERIFY(filled->isFilled);
    QVERIFY(outline->path != filled->path);
}

void SymbolTest::fill_ofAnIconWithoutOne_isItsOutline()
{
    const auto outline = findSymbol(u"xmark"_s);
    const auto filled = findSymbol(u"xmark.fill"_s);

    QVERIFY(!filled->isFilled);
    QCOMPARE(filled->path, outline->path);
}

void SymbolTest::framed_isSmallWithinARing()
{
    const auto path = findSymbol(u"sterlingsign.circle"_s)->path;

    QVERIFY(path.contains(QPointF(0.03, 0.5)));
    QVERIFY(!path.contains(QPointF(0.12, 0.5)));
    QVERIFY(path.intersects(QRectF(0.3, 0.3, 0.4, 0.4)));
}

void SymbolTest::framedAndFilled_isCutOut()
{
    const auto line = findSymbol(u"sterlingsign.circle"_s)->path;
    const auto filled = findSymbol(u"sterlingsign.circle.fill"_s)->path;

    QVERIFY(filled.contains(QPointF(0.12, 0.5)));
    int opposite = 0;
    for (int i = 0; i < 40; ++i) {
        const QPointF point(0.5, 0.3 + i * 0.01);
        opposite += line.contains(point) != filled.contains(point);
    }
    QCOMPARE(opposite, 40);
}

void SymbolTest::badge_leavesAGapAroundIt()
{
    const auto path = findSymbol(u"clock.badge"_s)->path;

    QVERIFY(path.contains(QPointF(0.84, 0.16)));
    const QPointF inTheGap(0.84 - 0.21 * 0.7071, 0.16 + 0.21 * 0.7071);
    QVERIFY(!path.contains(inTheGap));
}

void SymbolTest::pathsFillTheirSquare_data()
{
    QTest::addColumn<QString>("name");

    QTest::addRow("an icon") << u"circle"_s;
    QTest::addRow("a drawing") << u"circle.hexagongrid"_s;
    QTest::addRow("a composition") << u"ellipsis.circle"_s;
}

void SymbolTest::pathsFillTheirSquare()
{
    QFETCH(QString, name);

    const auto box = findSymbol(name)->path.boundingRect();

    QVERIFY(box.width() > 0.9 && box.width() < 1.01);
}

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

void SymbolTest::item_takesTheSizeOfTheSymbol()
{
    Symbol symbol;

    symbol.setSize(9);

    QCOMPARE(symbol.size(), 9.0);
    QCOMPARE(symbol.implicitWidth(), 9.0);
    QCOMPARE(symbol.implicitHeight(), 9.0);
}

void SymbolTest::item_betweenTwoPixels_goesToOne()
{
    Shown shown;
    const auto whole = shown.window.grabWindow();

    shown.symbol.setPosition({10.3, 9.8});

    QCOMPARE(shown.window.grabWindow(), whole);
    shown.symbol.setPosition({11, 10});
    QVERIFY(shown.window.grabWindow() != whole);
}

void SymbolTest::item_drawsOnlyWhatHasChanged()
{
    Shown shown;
    shown.window.grabWindow();
    QCOMPARE(shown.symbol.drawn, 1);

    shown.symbol.setPosition({20, 20});
    shown.symbol.setOpacity(0.5);
    shown.symbol.setName(u"tray"_s);
    shown.symbol.setColor(Qt::white);
    shown.window.grabWindow();
    QCOMPARE(shown.symbol.drawn, 1);

    shown.symbol.setColor(Qt::red);
    shown.window.grabWindow();
    QCOMPARE(shown.symbol.drawn, 2);
}

QTEST_MAIN(SymbolTest)
#include "tst_symbol.moc"
