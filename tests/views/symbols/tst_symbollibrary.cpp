#include "views/symbols/symbollibrary.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;
using quib::findSymbol;

class SymbolLibraryTest : public QObject {
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
};

namespace {

bool liesInTheSquare(const QPainterPath& path)
{
    return QRectF(-0.05, -0.05, 1.1, 1.1).contains(path.boundingRect());
}

} // namespace

void SymbolLibraryTest::everyAliasOfTheTable_hasAPath_data()
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

void SymbolLibraryTest::everyAliasOfTheTable_hasAPath()
{
    QFETCH(QString, name);

    const auto shape = findSymbol(name);

    QVERIFY(shape);
    QVERIFY(!shape->path.isEmpty());
    QVERIFY(liesInTheSquare(shape->path));
}

void SymbolLibraryTest::findSymbol_knows_data()
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

void SymbolLibraryTest::findSymbol_knows()
{
    QFETCH(QString, name);

    const auto shape = findSymbol(name);

    QVERIFY(shape);
    QVERIFY(!shape->path.isEmpty());
}

void SymbolLibraryTest::findSymbol_doesNotKnow_data()
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

void SymbolLibraryTest::findSymbol_doesNotKnow()
{
    QFETCH(QString, name);

    QVERIFY(!findSymbol(name));
}

void SymbolLibraryTest::fill_isTheFilledIcon()
{
    const auto outline = findSymbol(u"tray"_s);
    const auto filled = findSymbol(u"tray.fill"_s);

    QVERIFY(!outline->isFilled);
    QVERIFY(filled->isFilled);
    QVERIFY(outline->path != filled->path);
}

void SymbolLibraryTest::fill_ofAnIconWithoutOne_isItsOutline()
{
    const auto outline = findSymbol(u"xmark"_s);
    const auto filled = findSymbol(u"xmark.fill"_s);

    QVERIFY(!filled->isFilled);
    QCOMPARE(filled->path, outline->path);
}

void SymbolLibraryTest::framed_isSmallWithinARing()
{
    const auto path = findSymbol(u"sterlingsign.circle"_s)->path;

    QVERIFY(path.contains(QPointF(0.03, 0.5)));
    QVERIFY(!path.contains(QPointF(0.12, 0.5)));
    QVERIFY(path.intersects(QRectF(0.3, 0.3, 0.4, 0.4)));
}

void SymbolLibraryTest::framedAndFilled_isCutOut()
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

void SymbolLibraryTest::badge_leavesAGapAroundIt()
{
    const auto path = findSymbol(u"clock.badge"_s)->path;

    QVERIFY(path.contains(QPointF(0.84, 0.16)));
    const QPointF inTheGap(0.84 - 0.21 * 0.7071, 0.16 + 0.21 * 0.7071);
    QVERIFY(!path.contains(inTheGap));
}

void SymbolLibraryTest::pathsFillTheirSquare_data()
{
    QTest::addColumn<QString>("name");

    QTest::addRow("an icon") << u"circle"_s;
    QTest::addRow("a drawing") << u"circle.hexagongrid"_s;
    QTest::addRow("a composition") << u"ellipsis.circle"_s;
}

void SymbolLibraryTest::pathsFillTheirSquare()
{
    QFETCH(QString, name);

    const auto box = findSymbol(name)->path.boundingRect();

    QVERIFY(box.width() > 0.9 && box.width() < 1.01);
}

QTEST_GUILESS_MAIN(SymbolLibraryTest)
#include "tst_symbollibrary.moc"
