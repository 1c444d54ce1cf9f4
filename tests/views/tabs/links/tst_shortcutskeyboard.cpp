#include "support/panel/linkstab.h"
#include "support/toldtext.h"

using namespace Qt::StringLiterals;

/// The links tab for those who use no pointer.
class ShortcutsKeyboardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_links = std::make_unique<LinksTab>(); }
    void cleanup() { m_links.reset(); }

    void keys_reachEverything();
    void keys_reachButtonsOutOfSight();
    void keys_returnToAButtonScrolledAway_data();
    void keys_returnToAButtonScrolledAway();
    void names_tellWhatPressingDoes();
    void names_areCutWhereTheyAreEndless();

private:
    QStringList opened() const { return m_links->opener.asked; }
    /// The name of the button that has the focus, else that of the item.
    QString focused() const
    {
        const auto* focus = m_links->window->activeFocusItem();
        const auto name = textOf(focus, "name");
        return name.isEmpty() ? focus->objectName() : name;
    }

    std::unique_ptr<LinksTab> m_links;
};

void ShortcutsKeyboardTest::keys_reachEverything()
{
    m_links->show({LinksTab::group(u"A"_s, LinksTab::buttons(3)),
                   LinksTab::group(u"B"_s, LinksTab::buttons(2))});
    m_links->part(0, u"edit"_s)->forceActiveFocus(Qt::TabFocusReason);

    m_links->press(Qt::Key_Tab);
    QCOMPARE(focused(), u"Button 0"_s);
    QVERIFY(m_links->shortcut(0)->property("visualFocus").toBool());
    m_links->press(Qt::Key_Right);
    m_links->press(Qt::Key_Left);
    m_links->press(Qt::Key_Down);
    QCOMPARE(focused(), u"Button 2"_s);
    QVERIFY(m_links->shortcut(2)->property("visualFocus").toBool());
    m_links->press(Qt::Key_Down);
    QCOMPARE(focused(), u"Button 2"_s);
    m_links->press(Qt::Key_Return);
    m_links->press(Qt::Key_Tab);
    QCOMPARE(focused(), u"edit"_s);
    m_links->press(Qt::Key_Tab);
    m_links->press(Qt::Key_Right);
    m_links->press(Qt::Key_Space);

    QCOMPARE(opened(),
             (QStringList{u"browse https://example.com/2"_s, u"browse https://example.com/1"_s}));
    m_links->press(Qt::Key_Backtab);
    m_links->press(Qt::Key_Backtab);
    QCOMPARE(focused(), u"Button 2"_s);
}

void ShortcutsKeyboardTest::keys_reachButtonsOutOfSight()
{
    QJsonArray groups;
    for (int number = 0; number < 8; ++number) {
        groups << LinksTab::group(QString::number(number), LinksTab::buttons(20));
    }
    m_links->show(groups);
    m_links->part(0, u"edit"_s)->forceActiveFocus(Qt::TabFocusReason);
    const auto area = m_links->rect(u"groups"_s).adjusted(-1, -1, 1, 1);
    const auto focusRect = [&] { return inScene(m_links->window->activeFocusItem()); };

    for (int number = 0; number < 15; ++number) {
        m_links->press(Qt::Key_Tab);
        QVERIFY2(area.contains(focusRect()), qPrintable(QString::number(number)));
    }
    for (int number = 0; number < 19; ++number) {
        m_links->press(Qt::Key_Down);
        QVERIFY2(area.contains(focusRect()), qPrintable(QString::number(number)));
    }
    QCOMPARE(focused(), u"Button 19"_s);
}

void ShortcutsKeyboardTest::keys_returnToAButtonScrolledAway_data()
{
    QTest::addColumn<int>("pencil");
    QTest::addColumn<int>("key");

    QTest::addRow("Tab") << 0 << int(Qt::Key_Tab);
    QTest::addRow("Backtab") << 1 << int(Qt::Key_Backtab);
}

void ShortcutsKeyboardTest::keys_returnToAButtonScrolledAway()
{
    QFETCH(int, pencil);
    QFETCH(int, key);
    m_links->show({LinksTab::group(u"A"_s, LinksTab::buttons(60)),
                   LinksTab::group(u"B"_s, LinksTab::buttons(1))});
    auto* grid = m_links->part(0, u"buttons"_s);
    QMetaObject::invokeMethod(grid, "positionViewAtEnd");
    m_links->settle();
    QVERIFY(numberOf(grid, "contentY") > 0);
    m_links->part(pencil, u"edit"_s)->forceActiveFocus(Qt::TabFocusReason);

    m_links->press(key);

    QCOMPARE(focused(), u"Button 0"_s);
    QVERIFY(inScene(grid).contains(inScene(m_links->window->activeFocusItem())));
}

void ShortcutsKeyboardTest::names_tellWhatPressingDoes()
{
    m_links->show({LinksTab::group(
        u"Work"_s, {LinksTab::button(u"GitHub"_s, u"https://github.com"_s, u"star"_s)})});
    auto* button = m_links->shortcut(0);

    QCOMPARE(QAccessible::queryAccessibleInterface(button)->role(), QAccessible::Button);
    QCOMPARE(toldOf(button), u"Open GitHub"_s);
    QCOMPARE(toldOf(button, QAccessible::Description), u"https://github.com"_s);
    QCOMPARE(toldOf(m_links->part(0, u"edit"_s)), u"Edit the shortcuts of Work"_s);
    QCOMPARE(toldOf(m_links->part(0, u"buttons"_s)), u"Work"_s);
}

void ShortcutsKeyboardTest::names_areCutWhereTheyAreEndless()
{
    const QString endless(100'000, u'w');
    m_links->show({LinksTab::group(endless, {LinksTab::button(endless, endless, u"star"_s)})});

    for (auto* item :
         {m_links->shortcut(0), m_links->part(0, u"edit"_s), m_links->part(0, u"buttons"_s)}) {
        QVERIFY(toldOf(item).contains(u"www"_s));
        QVERIFY(toldOf(item).size() < 400);
        QVERIFY(toldOf(item, QAccessible::Description).size() < 400);
    }
}

QTEST_MAIN(ShortcutsKeyboardTest)
#include "tst_shortcutskeyboard.moc"
