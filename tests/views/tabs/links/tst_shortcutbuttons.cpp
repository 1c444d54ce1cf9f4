#include "support/panel/linkstab.h"
#include "support/panel/plaintexts.h"

#include <QDir>

using namespace Qt::StringLiterals;

/// A button of the links tab as its user meets it.
class ShortcutButtonsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_links = std::make_unique<LinksTab>(); }
    void cleanup() { m_links.reset(); }

    void click_opens_data();
    void click_opens();
    void doubleClick_opensOnce();
    void press_withThePointerShowsNoRing();
    void icon_isChosenInOrder_data();
    void icon_isChosenInOrder();
    void pictureOfAnApplication_isAskedFor();
    void help_isTheAddress();

private:
    QStringList opened() const { return m_links->opener.asked; }

    std::unique_ptr<LinksTab> m_links;
};

void ShortcutButtonsTest::click_opens_data()
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

void ShortcutButtonsTest::click_opens()
{
    QFETCH(QString, url);
    QFETCH(QString, asked);
    m_links->show({LinksTab::group(u"Work"_s, {LinksTab::button(u"Go"_s, url, u"star"_s)})});
    const auto surface = inScene(m_links->shortcut(0));

    QTest::mouseClick(m_links->window.get(), Qt::LeftButton, {},
                      surface.bottomRight().toPoint() - QPoint(12, 2));

    QCOMPARE(opened(), asked.isEmpty() ? QStringList() : QStringList{asked});
}

void ShortcutButtonsTest::doubleClick_opensOnce()
{
    m_links->show({LinksTab::group(u"A"_s, LinksTab::buttons(3))});

    m_links->doubleClick(m_links->shortcut(1));

    QCOMPARE(opened().size(), 1);
}

void ShortcutButtonsTest::press_withThePointerShowsNoRing()
{
    m_links->show({LinksTab::group(u"A"_s, LinksTab::buttons(3))});

    m_links->click(m_links->shortcut(1));

    QCOMPARE(opened().size(), 1);
    QVERIFY(!m_links->shortcut(1)->property("visualFocus").toBool());
}

void ShortcutButtonsTest::icon_isChosenInOrder_data()
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

void ShortcutButtonsTest::icon_isChosenInOrder()
{
    QFETCH(QString, icon);
    QFETCH(QString, url);
    QFETCH(QString, application);

    m_links->show({LinksTab::group(u"Work"_s, {LinksTab::button(u"Go"_s, url, icon)})});

    QTEST(textOf(m_links->partOf(0, u"symbol"_s), "name"), "symbol");
    const auto& asked = m_links->icons.open;
    QCOMPARE(asked.isEmpty() ? QString() : asked.front().path, application);
}

void ShortcutButtonsTest::pictureOfAnApplication_isAskedFor()
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

void ShortcutButtonsTest::help_isTheAddress()
{
    const auto url = u"https://example.com/<b>bold</b>"_s;
    m_links->show({LinksTab::group(u"Work"_s, {LinksTab::button(u"Go"_s, url)})});

    m_links->move(m_links->shortcut(0));

    auto* toolTip = m_links->shortcut(0)->property("toolTip").value<QObject*>();
    QTRY_VERIFY(toolTip->property("opened").toBool());
    QCOMPARE(textOf(toolTip), url);
    auto* content = toolTip->property("contentItem").value<QQuickItem*>();
    const auto texts = textItems(*content);
    QCOMPARE(texts.size(), 1);
    QVERIFY(isPlain(*texts.front()));
}

QTEST_MAIN(ShortcutButtonsTest)
#include "tst_shortcutbuttons.moc"
