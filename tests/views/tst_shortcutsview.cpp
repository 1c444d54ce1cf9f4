#include "support/linkstab.h"
#include "support/plaintexts.h"

#include <QAccessible>
#include <QAccessibleInterface>
#include <QDir>

using namespace Qt::StringLiterals;
using quib::Tab;

/// The links tab as its user meets it, with a real file.
class ShortcutsViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_links = std::make_unique<LinksTab>(); }
    void cleanup() { m_links.reset(); }

    void click_opens_data();
    void click_opens();
    void pencil_editsTheFile();
    void icon_isChosenInOrder_data();
    void icon_isChosenInOrder();
    void pictureOfAnApplication_isAskedFor();
    void noFile_showsTheStarterButtons();
    void noGroups_showsNothing();
    void brokenFile_keepsTheLastButtons();
    void firstShowing_readsTheFileOnce();
    void shownAnew_readsTheFile_data();
    void shownAnew_readsTheFile();
    void editedFile_keepsWhatIsTheSame();
    void twins_areBothShown();
    void keys_reachEverything();
    void keys_reachButtonsOutOfSight();
    void keys_returnToAButtonScrolledAway_data();
    void keys_returnToAButtonScrolledAway();
    void press_withThePointerShowsNoRing();
    void names_tellWhatPressingDoes();
    void names_areCutWhereTheyAreEndless();
    void help_isTheAddress();
    void texts_arePlain();

private:
    QStringList opened() const { return m_links->opener.asked; }
    QString symbol(int row) const
    {
        return m_links->partOf(row, u"symbol"_s)->property("name").toString();
    }
    QString focused() const
    {
        const auto* item = m_links->window->activeFocusItem();
        const auto name = item->property("name").toString();
        return name.isEmpty() ? item->objectName() : name;
    }

    std::unique_ptr<LinksTab> m_links;
};

void ShortcutsViewTest::click_opens_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("asked");

    QTest::addRow("an address") << u"https://example.com/a?b#c"_s
                                << u"browse https://example.com/a?b#c"_s;
    QTest::addRow("without a scheme") << u"example.com"_s << u"browse https://example.com"_s;
    QTest::addRow("a folder at home")
        << u"~/Music"_s << u"open "_s + QDir::homePath() + u"/Music"_s;
    QTest::addRow("nothing that opens") << u"https://"_s << QString();
}

void ShortcutsViewTest::click_opens()
{
    QFETCH(QString, url);
    QFETCH(QString, asked);
    m_links->show({LinksTab::group(u"Work"_s, {LinksTab::button(u"Go"_s, url, u"star"_s)})});
    const auto surface = inScene(m_links->shortcut(0));

    QTest::mouseClick(m_links->window.get(), Qt::LeftButton, {},
                      surface.bottomRight().toPoint() - QPoint(12, 2));

    QCOMPARE(opened(), asked.isEmpty() ? QStringList() : QStringList{asked});
}

void ShortcutsViewTest::pencil_editsTheFile()
{
    m_links->show({LinksTab::group(u"A"_s, {}), LinksTab::group(u"B"_s, {})});

    m_links->click(m_links->part(1, u"edit"_s));

    QCOMPARE(m_links->commands.asked, QStringList{u"edit shortcuts"_s});
}

void ShortcutsViewTest::icon_isChosenInOrder_data()
{
    QTest::addColumn<QString>("icon");
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("symbol");
    QTest::addColumn<QString>("application");

    const QString none;
    const auto home = QDir::homePath();
    QTest::addRow("a symbol") << u"envelope.fill"_s << u"~/a.app"_s << u"envelope.fill"_s << none;
    QTest::addRow("no symbol") << u"no.such.symbol"_s << u"~/a.app"_s << u"globe"_s << none;
    QTest::addRow("an empty name") << u""_s << u"~/a.app"_s << u"globe"_s << none;
    QTest::addRow("an application at home") << none << u"~/a.app"_s << none << home + u"/a.app"_s;
    QTest::addRow("an application") << none << u"/opt/a b.app"_s << none << u"/opt/a b.app"_s;
    QTest::addRow("a desktop entry") << none << u"/usr/share/applications/a.desktop"_s << none
                                     << u"/usr/share/applications/a.desktop"_s;
    QTest::addRow("another file") << none << u"~/a.txt"_s << u"globe"_s << none;
    QTest::addRow("an address") << none << u"https://example.com"_s << u"globe"_s << none;
    QTest::addRow("an address of applications") << none << u"example.app"_s << u"globe"_s << none;
}

void ShortcutsViewTest::icon_isChosenInOrder()
{
    QFETCH(QString, icon);
    QFETCH(QString, url);
    QFETCH(QString, application);

    m_links->show({LinksTab::group(u"Work"_s, {LinksTab::button(u"Go"_s, url, icon)})});

    QTEST(symbol(0), "symbol");
    const auto& asked = m_links->icons.open;
    QCOMPARE(asked.isEmpty() ? QString() : asked.front().path, application);
}

void ShortcutsViewTest::pictureOfAnApplication_isAskedFor()
{
    m_links->show({LinksTab::group(u"Work"_s, {LinksTab::button(u"Go"_s, u"/opt/a.app"_s)})});
    auto& icons = m_links->icons;
    QCOMPARE(icons.open.size(), 1);
    QCOMPARE(icons.open.front().pixels, 20);
    const auto middle = inScene(m_links->partOf(0, u"application"_s)).center().toPoint();

    icons.answerAll(Qt::red);
    m_links->settle();
    QCOMPARE(m_links->window->grabWindow().pixelColor(middle), QColor(Qt::red));
    Q_EMIT icons.changed();

    QCOMPARE(icons.open.size(), 1);
    icons.answerAll(Qt::green);
    m_links->settle();
    QCOMPARE(m_links->window->grabWindow().pixelColor(middle), QColor(Qt::green));
}

void ShortcutsViewTest::noFile_showsTheStarterButtons()
{
    m_links->show();

    QCOMPARE(m_links->titles(), (QStringList{u"Work"_s, u"Make money"_s}));
    QVERIFY(!m_links->item(u"problem"_s)->isVisible());
}

void ShortcutsViewTest::noGroups_showsNothing()
{
    m_links->show(QJsonArray());
    QVERIFY(m_links->boxes().isEmpty());
    QVERIFY(!m_links->item(u"problem"_s)->isVisible());

    m_links->shortcuts.reload();

    QVERIFY(m_links->boxes().isEmpty());
}

void ShortcutsViewTest::brokenFile_keepsTheLastButtons()
{
    m_links->show({LinksTab::group(u"Mine"_s, LinksTab::buttons(3))});
    QVERIFY(!m_links->item(u"problem"_s)->isVisible());
    const auto* before = m_links->shortcut(2);

    m_links->write(QByteArrayLiteral("{\"groups\": [,]}"));
    m_links->show();
    QCOMPARE(m_links->titles(), QStringList{u"Mine"_s});
    QCOMPARE(m_links->shortcut(2), before);
    QVERIFY(m_links->item(u"problem"_s)->isVisible());
    QCOMPARE(m_links->item(u"problemText"_s)->property("text").toString(),
             u"shortcuts.json has a typo, so these are the last working buttons. Check for a "
             "missing comma or quote."_s);

    m_links->show({LinksTab::group(u"Mended"_s, {})});
    QCOMPARE(m_links->titles(), QStringList{u"Mended"_s});
    QVERIFY(!m_links->item(u"problem"_s)->isVisible());
}

void ShortcutsViewTest::firstShowing_readsTheFileOnce()
{
    connect(&m_links->shortcuts, &quib::Shortcuts::groupsChanged, this,
            [this] { m_links->write({LinksTab::group(u"Written meanwhile"_s, {})}); });

    m_links->show({LinksTab::group(u"One"_s, {})});

    QCOMPARE(m_links->titles(), QStringList{u"One"_s});
}

void ShortcutsViewTest::shownAnew_readsTheFile_data()
{
    QTest::addColumn<bool>("byCollapse");

    QTest::addRow("after a collapse") << true;
    QTest::addRow("after another tab") << false;
}

void ShortcutsViewTest::shownAnew_readsTheFile()
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

void ShortcutsViewTest::editedFile_keepsWhatIsTheSame()
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
    QCOMPARE(grid->property("contentY").toDouble(), 84.0);
    QCOMPARE(m_links->titles(), (QStringList{u"A"_s, u"C"_s}));
}

void ShortcutsViewTest::twins_areBothShown()
{
    const auto twin = LinksTab::group(
        u"Twin"_s, {LinksTab::button(u"A"_s, u"a.b"_s), LinksTab::button(u"A"_s, u"a.b"_s)});

    m_links->show({twin, twin});

    QCOMPARE(m_links->titles(), (QStringList{u"Twin"_s, u"Twin"_s}));
    QVERIFY(m_links->shortcut(1, 1));
    QCOMPARE(m_links->part(1, u"buttons"_s)->property("count").toInt(), 2);
}

void ShortcutsViewTest::keys_reachEverything()
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

void ShortcutsViewTest::keys_reachButtonsOutOfSight()
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

void ShortcutsViewTest::keys_returnToAButtonScrolledAway_data()
{
    QTest::addColumn<int>("pencil");
    QTest::addColumn<int>("key");

    QTest::addRow("Tab") << 0 << int(Qt::Key_Tab);
    QTest::addRow("Backtab") << 1 << int(Qt::Key_Backtab);
}

void ShortcutsViewTest::keys_returnToAButtonScrolledAway()
{
    QFETCH(int, pencil);
    QFETCH(int, key);
    m_links->show({LinksTab::group(u"A"_s, LinksTab::buttons(60)),
                   LinksTab::group(u"B"_s, LinksTab::buttons(1))});
    auto* grid = m_links->part(0, u"buttons"_s);
    QMetaObject::invokeMethod(grid, "positionViewAtEnd");
    m_links->settle();
    QVERIFY(grid->property("contentY").toDouble() > 0);
    m_links->part(pencil, u"edit"_s)->forceActiveFocus(Qt::TabFocusReason);

    m_links->press(key);

    QCOMPARE(focused(), u"Button 0"_s);
    QVERIFY(inScene(grid).contains(inScene(m_links->window->activeFocusItem())));
}

void ShortcutsViewTest::press_withThePointerShowsNoRing()
{
    m_links->show({LinksTab::group(u"A"_s, LinksTab::buttons(3))});

    m_links->click(m_links->shortcut(1));

    QCOMPARE(opened().size(), 1);
    QVERIFY(!m_links->shortcut(1)->property("visualFocus").toBool());
}

void ShortcutsViewTest::names_tellWhatPressingDoes()
{
    m_links->show({LinksTab::group(
        u"Work"_s, {LinksTab::button(u"GitHub"_s, u"https://github.com"_s, u"star"_s)})});
    const auto interface = [](QObject* object) {
        return QAccessible::queryAccessibleInterface(object);
    };

    const auto* button = interface(m_links->shortcut(0));
    QCOMPARE(button->role(), QAccessible::Button);
    QCOMPARE(button->text(QAccessible::Name), u"Open GitHub"_s);
    QCOMPARE(button->text(QAccessible::Description), u"https://github.com"_s);
    QCOMPARE(interface(m_links->part(0, u"edit"_s))->text(QAccessible::Name),
             u"Edit the shortcuts of Work"_s);
    QCOMPARE(interface(m_links->part(0, u"buttons"_s))->text(QAccessible::Name), u"Work"_s);
}

void ShortcutsViewTest::names_areCutWhereTheyAreEndless()
{
    const QString endless(100'000, u'w');
    m_links->show({LinksTab::group(endless, {LinksTab::button(endless, endless, u"star"_s)})});

    for (auto* item :
         {m_links->shortcut(0), m_links->part(0, u"edit"_s), m_links->part(0, u"buttons"_s)}) {
        const auto* interface = QAccessible::queryAccessibleInterface(item);
        QVERIFY(interface->text(QAccessible::Name).contains(u"www"_s));
        QVERIFY(interface->text(QAccessible::Name).size() < 400);
        QVERIFY(interface->text(QAccessible::Description).size() < 400);
    }
}

void ShortcutsViewTest::help_isTheAddress()
{
    const auto url = u"https://example.com/<b>bold</b>"_s;
    m_links->show({LinksTab::group(u"Work"_s, {LinksTab::button(u"Go"_s, url)})});

    m_links->move(m_links->shortcut(0));

    auto* toolTip = m_links->shortcut(0)->property("toolTip").value<QObject*>();
    QTRY_VERIFY(toolTip->property("opened").toBool());
    QCOMPARE(toolTip->property("text").toString(), url);
    auto* content = toolTip->property("contentItem").value<QQuickItem*>();
    const auto texts = textItems(*content);
    QCOMPARE(texts.size(), 1);
    QVERIFY(isPlain(*texts.front()));
}

void ShortcutsViewTest::texts_arePlain()
{
    const auto markup = u"<img src='x'>"_s;
    m_links->show({LinksTab::group(markup, {LinksTab::button(markup, markup)})});
    m_links->write(QByteArrayLiteral("broken"));
    m_links->show();

    const auto texts = textItems(*m_links->item(u"shortcutsView"_s));

    QCOMPARE(texts.size(), 3);
    for (const auto* text : texts) {
        QVERIFY2(isPlain(*text), qPrintable(text->property("text").toString()));
    }
}

QTEST_MAIN(ShortcutsViewTest)
#include "tst_shortcutsview.moc"
