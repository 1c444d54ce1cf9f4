#include "support/panel/linkstab.h"

using namespace Qt::StringLiterals;
using quib::Tab;

/// The links tab and the file it shows, which its user may edit at any time.
class ShortcutsFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_links = std::make_unique<LinksTab>(); }
    void cleanup() { m_links.reset(); }

    void pencil_editsTheFile();
    void noFile_showsTheStarterButtons();
    void noGroups_showsNothing();
    void brokenFile_keepsTheLastButtons();
    void firstShowing_readsTheFileOnce();
    void shownAnew_readsTheFile_data();
    void shownAnew_readsTheFile();
    void editedFile_keepsWhatIsTheSame();
    void twins_areBothShown();

private:
    std::unique_ptr<LinksTab> m_links;
};

void ShortcutsFileTest::pencil_editsTheFile()
{
    m_links->show({LinksTab::group(u"A"_s, {}), LinksTab::group(u"B"_s, {})});

    m_links->click(m_links->part(1, u"edit"_s));

    QCOMPARE(m_links->commands.asked, QStringList{u"edit shortcuts"_s});
}

void ShortcutsFileTest::noFile_showsTheStarterButtons()
{
    m_links->show();

    QCOMPARE(m_links->titles(), (QStringList{u"Work"_s, u"Make money"_s}));
    QVERIFY(!m_links->item(u"problem"_s)->isVisible());
}

void ShortcutsFileTest::noGroups_showsNothing()
{
    m_links->show(QJsonArray());
    QVERIFY(m_links->boxes().isEmpty());
    QVERIFY(!m_links->item(u"problem"_s)->isVisible());

    m_links->shortcuts.reload();

    QVERIFY(m_links->boxes().isEmpty());
}

void ShortcutsFileTest::brokenFile_keepsTheLastButtons()
{
    m_links->show({LinksTab::group(u"Mine"_s, LinksTab::buttons(3))});
    QVERIFY(!m_links->item(u"problem"_s)->isVisible());
    const auto* before = m_links->shortcut(2);

    m_links->write(QByteArrayLiteral("{\"groups\": [,]}"));
    m_links->show();
    QCOMPARE(m_links->titles(), QStringList{u"Mine"_s});
    QCOMPARE(m_links->shortcut(2), before);
    QVERIFY(m_links->item(u"problem"_s)->isVisible());
    QCOMPARE(textOf(m_links->item(u"problemText"_s)),
             u"shortcuts.json has a typo, so these are the last working buttons. Check for a "
             "missing comma or quote."_s);

    m_links->show({LinksTab::group(u"Mended"_s, {})});
    QCOMPARE(m_links->titles(), QStringList{u"Mended"_s});
    QVERIFY(!m_links->item(u"problem"_s)->isVisible());
}

void ShortcutsFileTest::firstShowing_readsTheFileOnce()
{
    connect(&m_links->shortcuts, &quib::Shortcuts::groupsChanged, this,
            [this] { m_links->write({LinksTab::group(u"Written meanwhile"_s, {})}); });

    m_links->show({LinksTab::group(u"One"_s, {})});

    QCOMPARE(m_links->titles(), QStringList{u"One"_s});
}

void ShortcutsFileTest::shownAnew_readsTheFile_data()
{
    QTest::addColumn<bool>("byCollapse");

    QTest::addRow("after a collapse") << true;
    QTest::addRow("after another tab") << false;
}

void ShortcutsFileTest::shownAnew_readsTheFile()
{
    QFETCH(bool, byCollapse);
    auto& model = m_links->model;
    m_links->show({LinksTab::group(u"One"_s, {})});

    m_links->write({LinksTab::group(u"Two"_s, {})});
    QCOMPARE(m_links->titles(), QStringList{u"One"_s});
    if (byCollapse) {
        model.setExpanded(false);
        model.setExpanded(true);
    } else {
        model.setTab(Tab::Tasks);
        model.setTab(Tab::Links);
    }

    QTRY_COMPARE(m_links->titles(), QStringList{u"Two"_s});
}

void ShortcutsFileTest::editedFile_keepsWhatIsTheSame()
{
    auto buttons = LinksTab::buttons(60);
    m_links->show({LinksTab::group(u"A"_s, buttons), LinksTab::group(u"B"_s, {})});
    auto* grid = m_links->part(0, u"buttons"_s);
    grid->setProperty("contentY", 84);
    const auto* box = m_links->boxes().at(0);
    const auto* fifth = m_links->shortcut(5);

    buttons.removeAt(50);
    buttons.append(LinksTab::button(u"New"_s, u"example.com"_s));
    m_links->show({LinksTab::group(u"A"_s, buttons, u"gold"_s), LinksTab::group(u"C"_s, {})});

    QCOMPARE(m_links->boxes().at(0), box);
    QCOMPARE(m_links->shortcut(5), fifth);
    QVERIFY(fifth->property("gold").toBool());
    QCOMPARE(numberOf(grid, "contentY"), 84.0);
    QCOMPARE(m_links->titles(), (QStringList{u"A"_s, u"C"_s}));
}

void ShortcutsFileTest::twins_areBothShown()
{
    const auto twin = LinksTab::group(
        u"Twin"_s, {LinksTab::button(u"A"_s, u"a.b"_s), LinksTab::button(u"A"_s, u"a.b"_s)});

    m_links->show({twin, twin});

    QCOMPARE(m_links->titles(), (QStringList{u"Twin"_s, u"Twin"_s}));
    QVERIFY(m_links->shortcut(1, 1));
    QCOMPARE(m_links->part(1, u"buttons"_s)->property("count").toInt(), 2);
}

QTEST_MAIN(ShortcutsFileTest)
#include "tst_shortcutsfile.moc"
