#include "views/shapes/unseen.h"
#include "views/symbols/symbol.h"

#include <QQuickWindow>
#include <QTest>

using namespace Qt::StringLiterals;
using quib::Symbol;

class SymbolItemTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void item_takesTheSizeOfTheSymbol();
    void item_betweenTwoPixels_goesToOne();
    void item_drawsOnlyWhatHasChanged();
    void hiddenItem_isDrawnWhenItComesIntoSight();
    void hiddenItem_whosePictureIsLetGo_isDrawnAnew();
};

namespace {

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

void SymbolItemTest::item_takesTheSizeOfTheSymbol()
{
    Symbol symbol;

    symbol.setSize(9);

    QCOMPARE(symbol.size(), 9.0);
    QCOMPARE(symbol.implicitWidth(), 9.0);
    QCOMPARE(symbol.implicitHeight(), 9.0);
}

void SymbolItemTest::item_betweenTwoPixels_goesToOne()
{
    Shown shown;
    const auto whole = shown.window.grabWindow();

    shown.symbol.setPosition({10.3, 9.8});

    QCOMPARE(shown.window.grabWindow(), whole);
    shown.symbol.setPosition({11, 10});
    QVERIFY(shown.window.grabWindow() != whole);
}

void SymbolItemTest::item_drawsOnlyWhatHasChanged()
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

void SymbolItemTest::hiddenItem_isDrawnWhenItComesIntoSight()
{
    Shown shown;
    shown.symbol.setVisible(false);
    shown.window.grabWindow();
    shown.symbol.setColor(Qt::red);
    shown.window.grabWindow();
    QCOMPARE(shown.symbol.drawn, 0);

    shown.symbol.setVisible(true);
    shown.window.grabWindow();
    QCOMPARE(shown.symbol.drawn, 1);
    shown.symbol.setVisible(false);
    shown.symbol.setVisible(true);
    shown.window.grabWindow();
    QCOMPARE(shown.symbol.drawn, 1);
}

void SymbolItemTest::hiddenItem_whosePictureIsLetGo_isDrawnAnew()
{
    Shown shown;
    const auto seen = shown.window.grabWindow();
    quib::Unseen::letGo(shown.window.contentItem());
    shown.window.grabWindow();
    QCOMPARE(shown.symbol.drawn, 1); // It is in sight.

    shown.symbol.setVisible(false);
    quib::Unseen::letGo(shown.window.contentItem());
    shown.window.grabWindow();
    shown.symbol.setVisible(true);

    QCOMPARE(shown.window.grabWindow(), seen);
    QCOMPARE(shown.symbol.drawn, 2);
}

QTEST_MAIN(SymbolItemTest)
#include "tst_symbolitem.moc"
