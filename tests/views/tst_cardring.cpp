#include "support/panel/shownpanel.h"

#include <QPointingDevice>

using namespace Qt::StringLiterals;
using quib::Tab;

enum class Use { Press, Wheel, Tap };

/// What has the keys in the open card is in sight and ringed, until the pointer is used.
class CardRingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_panel.reset(); }

    void pointer_takesTheRingAwayAndAKeyBringsItBack_data();
    void pointer_takesTheRingAwayAndAKeyBringsItBack();
    void tabKey_comesRoundThroughEachTabInSight_data();
    void tabKey_comesRoundThroughEachTabInSight();

private:
    void usePointer(Use use, const QQuickItem* on);

    std::unique_ptr<ShownPanel> m_panel;
    std::unique_ptr<QPointingDevice> m_finger{QTest::createTouchDevice()};
};

void CardRingTest::init()
{
    m_panel = std::make_unique<ShownPanel>();
    m_panel->takeKeyboard();
}

void CardRingTest::usePointer(Use use, const QQuickItem* on)
{
    const auto place = inScene(on).center().toPoint();
    auto* window = m_panel->window.get();
    QWheelEvent wheel(place, window->mapToGlobal(place), {}, {0, -120}, {}, {}, Qt::NoScrollPhase,
                      false);
    switch (use) {
    case Use::Press: m_panel->click(on); break;
    case Use::Wheel: QCoreApplication::sendEvent(window, &wheel); break;
    case Use::Tap:
        QTest::touchEvent(window, m_finger.get()).press(0, place);
        QTest::touchEvent(window, m_finger.get()).release(0, place);
        break;
    }
}

void CardRingTest::pointer_takesTheRingAwayAndAKeyBringsItBack_data()
{
    QTest::addColumn<Use>("use");

    QTest::addRow("a press") << Use::Press;
    QTest::addRow("the wheel") << Use::Wheel;
    QTest::addRow("a finger") << Use::Tap;
}

void CardRingTest::pointer_takesTheRingAwayAndAKeyBringsItBack()
{
    QFETCH(const Use, use);
    m_panel->open(Tab::Home);
    m_panel->press(Qt::Key_Tab);
    const auto* ring = ShownPanel::find(m_panel->window->activeFocusItem(), u"focusRing"_s);
    QVERIFY(ring->isVisible());
    QCOMPARE(ring->opacity(), 1.0);

    usePointer(use, m_panel->item(u"date"_s));
    QCOMPARE(ring->opacity(), 0.0);
    m_panel->press(Qt::Key_Tab);

    ring = ShownPanel::find(m_panel->window->activeFocusItem(), u"focusRing"_s);
    QCOMPARE(ring->opacity(), 1.0);
}

void CardRingTest::tabKey_comesRoundThroughEachTabInSight_data()
{
    QTest::addColumn<Tab>("tab");
    QTest::addColumn<bool>("back");

    for (const auto tab : quib::AllTabs) {
        QTest::addRow("%s", qPrintable(quib::rawText(tab))) << tab << false;
        QTest::addRow("%s, back", qPrintable(quib::rawText(tab))) << tab << true;
    }
}

void CardRingTest::tabKey_comesRoundThroughEachTabInSight()
{
    QFETCH(const Tab, tab);
    QFETCH(const bool, back);
    const auto client = m_panel->workspace.client(u"Cafe"_s);
    for (int number = 0; number < 30; ++number) {
        m_panel->workspace.task(QString::number(number), client, number % 3 == 0);
        m_panel->workspace.client(QString::number(number));
    }
    m_panel->open(tab);
    m_panel->press(Qt::Key_Escape); // Out of a field.
    m_panel->item(u"pin"_s)->forceActiveFocus(Qt::TabFocusReason);

    int steps = 0;
    do {
        m_panel->press(back ? Qt::Key_Backtab : Qt::Key_Tab);
        const auto* item = m_panel->window->activeFocusItem();
        QVERIFY2(item->isVisible(), qPrintable(m_panel->focused()));
        QVERIFY2(m_panel->rect(u"shape"_s).contains(inScene(item).center()),
                 qPrintable(m_panel->focused()));
    } while (m_panel->focused() != "pin"_L1 && ++steps < 40);

    QCOMPARE(m_panel->focused(), u"pin"_s);
}

QTEST_MAIN(CardRingTest)
#include "tst_cardring.moc"
