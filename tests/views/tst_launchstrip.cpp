#include "support/hometab.h"
#include "support/toldtext.h"

#include "model/launchitem.h"

#include <QDir>

using namespace Qt::StringLiterals;

/// The quick-launch strip as its user meets it, by keyboard above all.
class LaunchStripTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tab = std::make_unique<HomeTab>(); }
    void cleanup() { m_tab.reset(); }

    void endOfEditing_keepsTheFocusInSight_data();
    void endOfEditing_keepsTheFocusInSight();
    void arrows_reachEveryItem();
    void tab_goesOnToTheTools();
    void keyThatRemoves_worksWhileEditing_data();
    void keyThatRemoves_worksWhileEditing();
    void removalsByKey_goOnWithTheNeighbour();
    void removalByPointer_goesOnWithoutARing();
    void returnAndEscape_showTheRing_data();
    void returnAndEscape_showTheRing();
    void secondWebsite_beginsWithItsName();
    void ringsAndBadges_areNotCut();
    void whatIsAdded_isScrolledTo_data();
    void whatIsAdded_isScrolledTo();
    void fades_tellThatMoreIsThere();
    void names_tellWhatPressingDoes();
    void icon_ofAPathIsAskedForAtItsSize();

private:
    QQuickItem* part(const QString& name) { return m_tab->part(u"launchStrip"_s, name); }
    QQuickItem* partOf(int row, const QString& name)
    {
        return ShownPanel::find(m_tab->rows(u"launchStrip"_s, u"item"_s).at(row), name);
    }
    QQuickItem* focusItem() { return m_tab->window->activeFocusItem(); }
    /// The name of the launch button that has the focus, else that of the item.
    QString focused();
    bool showsRing() { return focusItem()->property("visualFocus").toBool(); }
    void fill(int count);
    void click(const QString& name);
    void startEditing() { click(u"edit"_s); }
    QRectF list() { return inScene(part(u"items"_s)); }

    std::unique_ptr<HomeTab> m_tab;
};

QString LaunchStripTest::focused()
{
    const auto name = focusItem()->parentItem()->property("name").toString();
    return focusItem()->objectName() == u"launch"_s ? name : focusItem()->objectName();
}

void LaunchStripTest::fill(int count)
{
    for (int number = 0; number < count; ++number) {
        m_tab->store().addLaunchItem({.id = QUuid::createUuid(),
                                      .name = u"Number %1"_s.arg(number),
                                      .target = u"a.example"_s});
    }
    m_tab->settle();
}

void LaunchStripTest::click(const QString& name)
{
    m_tab->click(part(name));
    m_tab->settle();
}

void LaunchStripTest::endOfEditing_keepsTheFocusInSight_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");

    QTest::addRow("the name") << u"newName"_s << u"edit"_s;
    QTest::addRow("the address") << u"newURL"_s << u"edit"_s;
    QTest::addRow("adding an application") << u"addApplication"_s << u"edit"_s;
    QTest::addRow("adding a website") << u"addLink"_s << u"edit"_s;
    QTest::addRow("a badge") << u"remove"_s << u"Number 0"_s;
    QTest::addRow("an item") << u"launch"_s << u"Number 0"_s;
}

void LaunchStripTest::endOfEditing_keepsTheFocusInSight()
{
    QFETCH(QString, before);
    fill(1);
    startEditing();
    click(u"addLink"_s);
    part(before)->forceActiveFocus(Qt::TabFocusReason);
    QVERIFY(part(before)->hasActiveFocus());

    startEditing(); // The same button ends it.

    QVERIFY(!part(u"linkFields"_s)->isVisible());
    QVERIFY(focusItem()->isVisible());
    QTEST(focused(), "after");
}

void LaunchStripTest::arrows_reachEveryItem()
{
    fill(40);
    partOf(0, u"launch"_s)->forceActiveFocus(Qt::TabFocusReason);

    for (int number = 1; number < 40; ++number) {
        m_tab->press(Qt::Key_Right);
        QCOMPARE(focused(), u"Number %1"_s.arg(number));
        QVERIFY(showsRing());
        QVERIFY(list().contains(inScene(focusItem())));
    }
    m_tab->press(Qt::Key_Right);
    QCOMPARE(focused(), u"Number 39"_s);
    for (int number = 38; number >= 0; --number) {
        m_tab->press(Qt::Key_Left);
        QCOMPARE(focused(), u"Number %1"_s.arg(number));
        QVERIFY(list().contains(inScene(focusItem())));
    }
    m_tab->press(Qt::Key_End);
    QCOMPARE(focused(), u"Number 39"_s);
    QVERIFY(list().contains(inScene(focusItem())));
    m_tab->press(Qt::Key_Home);
    QCOMPARE(focused(), u"Number 0"_s);
    QVERIFY(showsRing());
}

void LaunchStripTest::tab_goesOnToTheTools()
{
    fill(40);
    startEditing();
    partOf(0, u"launch"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_tab->press(Qt::Key_End);

    for (const auto& name : {u"addApplication"_s, u"addLink"_s, u"edit"_s}) {
        m_tab->press(Qt::Key_Tab);
        QCOMPARE(focused(), name);
    }
    for (const auto& name : {u"addLink"_s, u"addApplication"_s, u"Number 39"_s}) {
        m_tab->press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(focused(), name);
        QVERIFY(showsRing());
    }
    m_tab->press(Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(!part(u"items"_s)->hasActiveFocus());
}

void LaunchStripTest::keyThatRemoves_worksWhileEditing_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("editing");
    QTest::addColumn<int>("left");

    QTest::addRow("Delete") << int(Qt::Key_Delete) << true << 1;
    QTest::addRow("Backspace") << int(Qt::Key_Backspace) << true << 1;
    QTest::addRow("Delete, not editing") << int(Qt::Key_Delete) << false << 2;
    QTest::addRow("Backspace, not editing") << int(Qt::Key_Backspace) << false << 2;
}

void LaunchStripTest::keyThatRemoves_worksWhileEditing()
{
    QFETCH(int, key);
    QFETCH(bool, editing);
    fill(2);
    if (editing) {
        startEditing();
    }
    partOf(0, u"launch"_s)->forceActiveFocus(Qt::TabFocusReason);

    m_tab->press(key);

    QTEST(int(m_tab->store().data().launch.size()), "left");
}

void LaunchStripTest::removalsByKey_goOnWithTheNeighbour()
{
    fill(4);
    startEditing();
    partOf(0, u"launch"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_tab->press(Qt::Key_Right);
    m_tab->press(Qt::Key_Right);

    for (const auto& next : {u"Number 3"_s, u"Number 1"_s, u"Number 0"_s, u"edit"_s}) {
        m_tab->press(Qt::Key_Delete);
        QCOMPARE(focused(), next);
        QVERIFY(showsRing());
    }
    m_tab->press(Qt::Key_Delete);

    QVERIFY(m_tab->store().data().launch.isEmpty());
}

void LaunchStripTest::removalByPointer_goesOnWithoutARing()
{
    fill(2);
    startEditing();
    partOf(0, u"launch"_s)->forceActiveFocus(Qt::TabFocusReason);

    m_tab->click(partOf(0, u"remove"_s));

    QCOMPARE(m_tab->store().data().launch.size(), 1);
    QCOMPARE(focused(), u"Number 1"_s);
    QVERIFY(!showsRing());
}

void LaunchStripTest::returnAndEscape_showTheRing_data()
{
    QTest::addColumn<int>("key");

    QTest::addRow("Return") << int(Qt::Key_Return);
    QTest::addRow("Escape") << int(Qt::Key_Escape);
}

void LaunchStripTest::returnAndEscape_showTheRing()
{
    QFETCH(int, key);
    startEditing();
    click(u"addLink"_s);
    m_tab->press(Qt::Key_Tab);
    m_tab->type(u"a.example"_s);

    m_tab->press(key);

    QVERIFY(!part(u"linkFields"_s)->isVisible());
    QCOMPARE(focused(), u"addLink"_s);
    QVERIFY(showsRing());
}

void LaunchStripTest::secondWebsite_beginsWithItsName()
{
    startEditing();
    click(u"addLink"_s);
    m_tab->press(Qt::Key_Tab);
    m_tab->type(u"a.example"_s);
    m_tab->press(Qt::Key_Return);

    m_tab->press(Qt::Key_Return);
    m_tab->type(u"Shop"_s);

    QCOMPARE(part(u"newName"_s)->property("text").toString(), u"Shop"_s);
}

void LaunchStripTest::ringsAndBadges_areNotCut()
{
    fill(40);
    startEditing();
    const auto strip = m_tab->rect(u"launchStrip"_s);
    QCOMPARE(inScene(partOf(0, u"launch"_s)).left(), strip.left());

    partOf(0, u"launch"_s)->forceActiveFocus(Qt::TabFocusReason);
    for (const auto key : {Qt::Key_Home, Qt::Key_Right, Qt::Key_End, Qt::Key_Left}) {
        m_tab->press(key);
        m_tab->settle();
        const auto ring = inScene(focusItem()).adjusted(-2, -2, 2, 2);
        QVERIFY(list().contains(ring));
        QVERIFY(list().contains(inScene(ShownPanel::find(focusItem()->parentItem(), u"badge"_s))));
    }
}

void LaunchStripTest::whatIsAdded_isScrolledTo_data()
{
    QTest::addColumn<bool>("application");

    QTest::addRow("an application") << true;
    QTest::addRow("a website") << false;
}

void LaunchStripTest::whatIsAdded_isScrolledTo()
{
    QFETCH(bool, application);
    fill(40);
    startEditing();
    QVERIFY(!part(u"items"_s)->property("atXEnd").toBool());

    if (application) {
        click(u"addApplication"_s);
        m_tab->commands.choices.front()(QUrl::fromLocalFile(u"/opt/a.desktop"_s));
    } else {
        click(u"addLink"_s);
        m_tab->press(Qt::Key_Tab);
        m_tab->type(u"a.example"_s);
        m_tab->press(Qt::Key_Return);
    }
    m_tab->settle();

    QCOMPARE(m_tab->store().data().launch.size(), 41);
    QVERIFY(part(u"items"_s)->property("atXEnd").toBool());
}

void LaunchStripTest::fades_tellThatMoreIsThere()
{
    const auto fades = [this] {
        return std::pair(part(u"moreBefore"_s)->isVisible(), part(u"moreAfter"_s)->isVisible());
    };
    QCOMPARE(fades(), std::pair(false, false));
    fill(2);
    QCOMPARE(fades(), std::pair(false, false));

    fill(40);
    QCOMPARE(fades(), std::pair(false, true));
    partOf(0, u"launch"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_tab->press(Qt::Key_Right);
    QCOMPARE(fades(), std::pair(false, true));
    m_tab->press(Qt::Key_End);
    QCOMPARE(fades(), std::pair(true, false));
    for (int number = 0; number < 20; ++number) {
        m_tab->press(Qt::Key_Left);
    }
    QCOMPARE(fades(), std::pair(true, true));
}

void LaunchStripTest::names_tellWhatPressingDoes()
{
    m_tab->launch(u"Mail %1"_s, u"mail.example"_s);
    QCOMPARE(toldOf(part(u"launch"_s)), u"Open Mail %1"_s);
    QCOMPARE(toldOf(part(u"launch"_s), QAccessible::Description), u"mail.example"_s);
    QCOMPARE(toldOf(part(u"remove"_s)), u"Remove Mail %1"_s);
    QCOMPARE(toldOf(part(u"edit"_s)), u"Edit quick launch"_s);

    startEditing();

    QCOMPARE(toldOf(part(u"edit"_s)), u"Done editing quick launch"_s);
    QCOMPARE(part(u"edit"_s)->property("help").toString(), u"Edit quick launch"_s);

    m_tab->store().removeLaunchItem(m_tab->store().data().launch.front().id);
    m_tab->settle();
    m_tab->launch(QString(100'000, u'w'), QString(100'000, u'w'));
    for (auto* item : {part(u"launch"_s), part(u"remove"_s)}) {
        QVERIFY(toldOf(item).size() < 400);
        QVERIFY(toldOf(item, QAccessible::Description).size() < 400);
    }
}

void LaunchStripTest::icon_ofAPathIsAskedForAtItsSize()
{
    m_tab->launch(u"Files"_s, u"~/files.desktop"_s);
    const auto& asked = m_tab->icons.open;
    QCOMPARE(asked.size(), 1);
    QCOMPARE(asked.front().path, QDir::homePath() + u"/files.desktop"_s);
    QCOMPARE(asked.front().pixels, qRound(16 * m_tab->window->effectiveDevicePixelRatio()));
    const auto middle = inScene(part(u"icon"_s)).center().toPoint();

    m_tab->icons.answerAll(Qt::red);
    m_tab->settle();

    const auto picture = m_tab->window->grabWindow();
    const auto scale = m_tab->window->effectiveDevicePixelRatio();
    QCOMPARE(picture.pixelColor(middle * scale), QColor(Qt::red));
}

QTEST_MAIN(LaunchStripTest)
#include "tst_launchstrip.moc"
