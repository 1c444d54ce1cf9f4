#include "support/hometab.h"

using namespace Qt::StringLiterals;

/// The quick-launch strip while it is edited, of which no picture is kept.
class HomeViewSizesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tab = std::make_unique<HomeTab>(); }
    void cleanup() { m_tab.reset(); }

    void editedStrip_hasItsButtons();

private:
    QQuickItem* part(const QString& card, const QString& name) { return m_tab->part(card, name); }
    QRectF rect(const QString& card, const QString& name) { return inScene(part(card, name)); }

    std::unique_ptr<HomeTab> m_tab;
};

void HomeViewSizesTest::editedStrip_hasItsButtons()
{
    const auto card = u"launchStrip"_s;
    m_tab->launch(u"Mail"_s, u"mail.example"_s);
    m_tab->click(part(card, u"edit"_s));
    m_tab->settle();

    const QList<std::tuple<QString, QString, QString>> buttons{
        {u"edit"_s, u"checkmark"_s, u"Edit quick launch"_s},
        {u"addApplication"_s, u"app.badge"_s, u"Add an app"_s},
        {u"addLink"_s, u"link.badge.plus"_s, u"Add a website"_s}};
    for (const auto& [name, symbol, help] : buttons) {
        const auto* button = part(card, name);
        QCOMPARE(textOf(button, "symbol"), symbol);
        QCOMPARE(numberOf(button, "size"), 12.0);
        QCOMPARE(textOf(button, "help"), help);
    }
    const auto* badge = part(card, u"badge"_s);
    QCOMPARE(textOf(badge, "name"), u"minus.circle.fill"_s);
    QVERIFY(m_tab->rect(card).contains(rect(card, u"badge"_s)));
    QCOMPARE(textOf(part(card, u"newName"_s), "placeholder"), u"Name"_s);
    const auto website = textOf(part(card, u"newURL"_s), "placeholder");
    QVERIFY(website.startsWith(u"Website, e.g. "_s) && !website.contains(u"://"_s));
}

QTEST_MAIN(HomeViewSizesTest)
#include "tst_homeviewsizes.moc"
