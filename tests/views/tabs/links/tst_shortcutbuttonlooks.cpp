#include "support/panel/linkstab.h"

using namespace Qt::StringLiterals;

/// The colours of a button of the links tab, and the room that its name has.
class ShortcutButtonLooksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_links = std::make_unique<LinksTab>(); }
    void cleanup() { m_links.reset(); }

    void button_hasTheColoursOfItsGroup_data();
    void button_hasTheColoursOfItsGroup();
    void name_shrinksBeforeItIsCut();
    void names_stayInTheirButtons_data();
    void names_stayInTheirButtons();

private:
    std::unique_ptr<LinksTab> m_links;
};

namespace {

/// The colour and its opacity in hundredths.
QString told(const QColor& color)
{
    return color.name() + u' ' + QString::number(qRound(color.alphaF() * 100));
}

} // namespace

void ShortcutButtonLooksTest::button_hasTheColoursOfItsGroup_data()
{
    QTest::addColumn<QString>("color");
    QTest::addColumn<QString>("ink");
    QTest::addColumn<QString>("rest");
    QTest::addColumn<QString>("hover");

    const auto neutral = [](const char* row, const QString& color) {
        QTest::addRow("%s", row) << color << u"#ffffff 100"_s << u"#ffffff 6, #000000 0"_s
                                 << u"#ffffff 12, #000000 0"_s;
    };
    const auto tinted = [](const char* row, const QString& color, const QString& tint) {
        QTest::addRow("%s", row) << color << tint + u" 100"_s << u"%1 14, %1 40"_s.arg(tint)
                                 << u"%1 26, %1 70"_s.arg(tint);
    };
    neutral("no colour", {});
    neutral("purple", u"purple"_s);
    neutral("Purple", u"Purple"_s);
    tinted("gold", u"gold"_s, u"#f5c542"_s);
    tinted("Gold", u"Gold"_s, u"#f5c542"_s);
    tinted("a green", u"#22c55e"_s, u"#22c55e"_s);
    tinted("a word that is no colour", u"red"_s, u"#a78bfa"_s);
    tinted("an empty word", u""_s, u"#a78bfa"_s);
}

void ShortcutButtonLooksTest::button_hasTheColoursOfItsGroup()
{
    QFETCH(QString, color);
    m_links->showButton(u"Go"_s, color);
    const auto* surface = m_links->partOf(0, u"surface"_s);
    const auto look
        = [&] { return told(colorOf(surface)) + u", "_s + told(colorOf(surface, "strokeColor")); };

    QTEST(told(colorOf(m_links->partOf(0, u"symbol"_s))), "ink");
    QTEST(told(colorOf(m_links->partOf(0, u"name"_s))), "ink");
    QTEST(look(), "rest");
    m_links->move(m_links->shortcut(0));
    QTEST(look(), "hover");
    m_links->move(m_links->part(0, u"title"_s));
    QTEST(look(), "rest");
}

void ShortcutButtonLooksTest::name_shrinksBeforeItIsCut()
{
    const auto fitOf = [&](int letters) {
        m_links->show({LinksTab::group(
            u"A"_s, {LinksTab::button(QString(letters, u'n'), u"a.b"_s, u"star"_s)})});
        return numberOf(m_links->partOf(0, u"name"_s), "fit");
    };

    double least = 1;
    QCOMPARE(fitOf(3), 1.0);
    for (int letters = 12; letters < 25; ++letters) {
        const auto fit = fitOf(letters);
        QVERIFY(fit <= least && fit >= 0.8);
        least = fit;
    }
    QCOMPARE(least, 0.8);
}

void ShortcutButtonLooksTest::names_stayInTheirButtons_data()
{
    QTest::addColumn<QString>("name");

    QTest::addRow("sixty letters") << QString(60, u'w');
    QTest::addRow("a megabyte") << QString(1'000'000, u'w');
    QTest::addRow("pictures") << u"🎉👩‍👩‍👧"_s.repeated(30);
    QTest::addRow("from right to left") << u"مكتبة الزاوية "_s.repeated(10);
    QTest::addRow("lines") << u"Two\nlines\u2028of many"_s.repeated(10);
    QTest::addRow("none") << u""_s;
    QTest::addRow("markup") << u"<h1>Large</h1><img src='http://x/y'>"_s;
}

void ShortcutButtonLooksTest::names_stayInTheirButtons()
{
    QFETCH(QString, name);
    m_links->show({LinksTab::group(name, {LinksTab::button(name, name, u"star"_s)}),
                   LinksTab::group(u"B"_s, {})});

    const auto button = inScene(m_links->shortcut(0));
    const auto* text = m_links->partOf(0, u"name"_s);
    const auto title = inScene(m_links->part(0, u"title"_s));
    QVERIFY(isNear(button.height(), 36));
    QVERIFY(inScene(text).right() <= button.right() - 9.9);
    QVERIFY(inScene(text->childItems().front()).right() <= button.right() - 9.9);
    QVERIFY(inScene(text).height() < 20);
    QVERIFY(title.right() < inScene(m_links->part(0, u"edit"_s)).left());
    QVERIFY(title.height() < 20);
}

QTEST_MAIN(ShortcutButtonLooksTest)
#include "tst_shortcutbuttonlooks.moc"
