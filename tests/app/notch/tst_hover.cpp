#include "app/notch/hover.h"

#include <QTest>

using quib::ClickAction;
using quib::HoverAction;
using quib::HoverTick;

class HoverTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tick_data();
    void tick();
    void click_data();
    void click();
};

void HoverTest::tick_data()
{
    QTest::addColumn<HoverTick>("tick");
    QTest::addColumn<HoverAction>("action");

    QTest::addRow("collapsed, pointer away") << HoverTick{} << HoverAction::None;
    QTest::addRow("collapsed, pointer away, pinned")
        << HoverTick{.keptOpen = true} << HoverAction::None;
    QTest::addRow("collapsed, button held elsewhere")
        << HoverTick{.buttonHeld = true} << HoverAction::None;
    QTest::addRow("reaches the notch") << HoverTick{.pointerInside = true} << HoverAction::Expand;
    QTest::addRow("carries a file to the notch")
        << HoverTick{.pointerInside = true, .buttonHeld = true} << HoverAction::ExpandToShelf;
    QTest::addRow("in the card") << HoverTick{.pointerInside = true, .expanded = true}
                                 << HoverAction::None;
    QTest::addRow("leaves the card")
        << HoverTick{.expanded = true} << HoverAction::ScheduleCollapse;
    QTest::addRow("leaves, kept open")
        << HoverTick{.expanded = true, .keptOpen = true} << HoverAction::None;
    QTest::addRow("leaves, button held")
        << HoverTick{.buttonHeld = true, .expanded = true} << HoverAction::None;
    QTest::addRow("still outside, collapse pending")
        << HoverTick{.expanded = true, .collapsePending = true} << HoverAction::None;
    QTest::addRow("returns in time")
        << HoverTick{.pointerInside = true, .expanded = true, .collapsePending = true}
        << HoverAction::CancelCollapse;
    QTest::addRow("returns in time with the button held") << HoverTick{.pointerInside = true,
                                                                       .buttonHeld = true,
                                                                       .expanded = true,
                                                                       .collapsePending = true}
                                                          << HoverAction::CancelCollapse;
}

void HoverTest::tick()
{
    QFETCH(HoverTick, tick);
    QFETCH(HoverAction, action);

    QCOMPARE(quib::decideHover(tick), action);
}

void HoverTest::click_data()
{
    QTest::addColumn<HoverTick>("tick");
    QTest::addColumn<ClickAction>("action");

    QTest::addRow("collapsed") << HoverTick{.buttonHeld = true} << ClickAction::None;
    QTest::addRow("in the card") << HoverTick{.pointerInside = true,
                                              .buttonHeld = true,
                                              .expanded = true}
                                 << ClickAction::None;
    QTest::addRow("elsewhere") << HoverTick{.buttonHeld = true, .expanded = true}
                               << ClickAction::Collapse;
    QTest::addRow("elsewhere, kept open")
        << HoverTick{.buttonHeld = true, .expanded = true, .keptOpen = true}
        << ClickAction::CloseMenu;
    QTest::addRow("elsewhere, collapse pending")
        << HoverTick{.buttonHeld = true, .expanded = true, .collapsePending = true}
        << ClickAction::Collapse;
}

void HoverTest::click()
{
    QFETCH(HoverTick, tick);
    QFETCH(ClickAction, action);

    QCOMPARE(quib::decideClick(tick), action);
}

QTEST_APPLESS_MAIN(HoverTest)
#include "tst_hover.moc"
