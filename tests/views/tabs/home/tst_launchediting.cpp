#include "support/panel/launchstrip.h"

using namespace Qt::StringLiterals;

/// How items of the quick-launch strip come and go.
class LaunchEditingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_strip = std::make_unique<LaunchStrip>(); }
    void cleanup() { m_strip.reset(); }

    void editing_offersItsButtons();
    void editing_removesAnItem();
    void badge_doubleClicked_removesOneItem();
    void delete_heldDown_removesOneItem();
    void application_isAdded();
    void website_isAddedByKeyboard();
    void website_withoutAddress_addsNothing();
    void escape_leavesTheFields();
    void secondWebsite_beginsWithItsName();
    void whatIsAdded_isScrolledTo_data();
    void whatIsAdded_isScrolledTo();

private:
    std::unique_ptr<LaunchStrip> m_strip;
};

void LaunchEditingTest::editing_offersItsButtons()
{
    m_strip->launch(u"Mail"_s, u"mail.example"_s);
    m_strip->startAdding();

    QCOMPARE(textOf(m_strip->part(u"edit"_s), "help"), u"Edit quick launch"_s);
    QCOMPARE(textOf(m_strip->part(u"addApplication"_s), "help"), u"Add an app"_s);
    QCOMPARE(textOf(m_strip->part(u"addLink"_s), "help"), u"Add a website"_s);
    QCOMPARE(textOf(m_strip->part(u"newName"_s), "placeholder"), u"Name"_s);
    const auto website = textOf(m_strip->part(u"newURL"_s), "placeholder");
    QVERIFY(website.startsWith(u"Website, e.g. "_s) && !website.contains(u"://"_s));
    QVERIFY(inScene(m_strip->item(u"launchStrip"_s)).contains(inScene(m_strip->part(u"badge"_s))));
}

void LaunchEditingTest::editing_removesAnItem()
{
    m_strip->launch(u"Mail"_s, u"mail.example"_s);
    QVERIFY(!m_strip->part(u"remove"_s)->isVisible());
    QCOMPARE(textOf(m_strip->part(u"edit"_s), "symbol"), u"slider.horizontal.3"_s);
    m_strip->startEditing();
    QCOMPARE(textOf(m_strip->part(u"edit"_s), "symbol"), u"checkmark"_s);

    m_strip->push(u"remove"_s);

    QVERIFY(m_strip->store().data().launch.isEmpty());
}

void LaunchEditingTest::badge_doubleClicked_removesOneItem()
{
    m_strip->fill(5, u"Same"_s);
    m_strip->startEditing();

    m_strip->doubleClick(m_strip->part(u"remove"_s));

    QCOMPARE(m_strip->store().data().launch.size(), 4);
}

void LaunchEditingTest::delete_heldDown_removesOneItem()
{
    m_strip->fill(5);
    m_strip->startEditing();
    m_strip->takeKeyboard();
    m_strip->part(u"launch"_s)->forceActiveFocus(Qt::TabFocusReason);

    m_strip->hold(Qt::Key_Delete);

    QCOMPARE(m_strip->store().data().launch.size(), 4);
}

void LaunchEditingTest::application_isAdded()
{
    m_strip->startEditing();

    m_strip->push(u"addApplication"_s);
    m_strip->commands.choices.front()(QUrl::fromLocalFile(u"/opt/a.desktop"_s));

    QCOMPARE(m_strip->store().data().launch.back().target, u"/opt/a.desktop"_s);
    QCOMPARE(m_strip->store().data().launch.back().name, u"the application at /opt/a.desktop"_s);
}

void LaunchEditingTest::website_isAddedByKeyboard()
{
    m_strip->startAdding();
    QCOMPARE(m_strip->commands.asked, QStringList{u"take keyboard"_s});
    QVERIFY(m_strip->part(u"linkFields"_s)->isVisible());

    m_strip->press(Qt::Key_Tab);
    m_strip->type(u"Shop.Example.COM/admin"_s);
    m_strip->press(Qt::Key_Return);

    const auto& item = m_strip->store().data().launch.back();
    QCOMPARE(item.name, u"Shop.Example.COM"_s);
    QCOMPARE(item.target, u"Shop.Example.COM/admin"_s);
    QVERIFY(!m_strip->part(u"linkFields"_s)->isVisible());
    QCOMPARE(textOf(m_strip->part(u"newURL"_s)), QString());
}

void LaunchEditingTest::website_withoutAddress_addsNothing()
{
    m_strip->startAdding();

    m_strip->type(u"A name"_s);
    m_strip->press(Qt::Key_Return);

    QVERIFY(m_strip->store().data().launch.isEmpty());
    QVERIFY(m_strip->part(u"linkFields"_s)->isVisible());
    QCOMPARE(textOf(m_strip->part(u"newName"_s)), u"A name"_s);
}

void LaunchEditingTest::escape_leavesTheFields()
{
    m_strip->startAdding();

    m_strip->press(Qt::Key_Escape);

    QVERIFY(!m_strip->part(u"linkFields"_s)->isVisible());
    QVERIFY(m_strip->model.isExpanded());
}

void LaunchEditingTest::secondWebsite_beginsWithItsName()
{
    m_strip->startAdding();
    m_strip->press(Qt::Key_Tab);
    m_strip->type(u"a.example"_s);
    m_strip->press(Qt::Key_Return);

    m_strip->press(Qt::Key_Return);
    m_strip->type(u"Shop"_s);

    QCOMPARE(textOf(m_strip->part(u"newName"_s)), u"Shop"_s);
}

void LaunchEditingTest::whatIsAdded_isScrolledTo_data()
{
    QTest::addColumn<bool>("application");

    QTest::addRow("an application") << true;
    QTest::addRow("a website") << false;
}

void LaunchEditingTest::whatIsAdded_isScrolledTo()
{
    QFETCH(bool, application);
    m_strip->fill(40);
    m_strip->startEditing();
    QVERIFY(!m_strip->part(u"items"_s)->property("atXEnd").toBool());

    if (application) {
        m_strip->push(u"addApplication"_s);
        m_strip->commands.choices.front()(QUrl::fromLocalFile(u"/opt/a.desktop"_s));
    } else {
        m_strip->push(u"addLink"_s);
        m_strip->press(Qt::Key_Tab);
        m_strip->type(u"a.example"_s);
        m_strip->press(Qt::Key_Return);
    }
    m_strip->settle();

    QCOMPARE(m_strip->store().data().launch.size(), 41);
    QVERIFY(m_strip->part(u"items"_s)->property("atXEnd").toBool());
}

QTEST_MAIN(LaunchEditingTest)
#include "tst_launchediting.moc"
