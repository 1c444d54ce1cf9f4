#include "support/clientbook.h"
#include "support/panel/hometab.h"
#include "support/panel/linkstab.h"
#include "support/panel/plaintexts.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

/// Texts from outside must never be read as markup: Qt would fetch their pictures, or crash.
class PlainTextsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyTextOfTheControls_isPlain();
    void everyTextOfTheHomeTab_isPlain();
    void everyTextOfTheClientsTab_isPlain();
    void everyTextOfTheLinksTab_isPlain();
    void theWalk_tellsATextThatIsNot();
};

namespace {

const auto Hostile = u"<img src='x'>"_s;

constexpr auto Controls = R"(
    import QtQuick
    import Quib.Controls

    Window {
        property string hostile

        visible: true
        width: 760
        height: 330

        Column {
            QuibText { text: hostile }
            SectionLabel { text: hostile }
            DigitsText { text: hostile }
            PillButton { title: hostile }
            IconButton { symbol: hostile; help: hostile; Component.onCompleted: { prepareToolTip(); toolTip.open() } }
            FilterChip { title: hostile }
            SegmentedPicker { name: hostile; titles: [hostile]; selected: 0 }
            Card { QuibText { text: hostile } }
            QuibField { placeholder: hostile }
            QuibTextArea { placeholder: hostile; value: hostile }
            Item { QuibMenu { model: [{ title: hostile }]; visible: true } }
        }
    }
)";

} // namespace

void PlainTextsTest::everyTextOfTheControls_isPlain()
{
    QQmlEngine engine;
    engine.addImportPath(u"qrc:/qt/qml"_s);
    QQmlComponent component(&engine);
    component.setData(Controls, {});
    const std::unique_ptr<QObject> made(
        component.createWithInitialProperties({{u"hostile"_s, Hostile}}));
    const auto* window = qobject_cast<QQuickWindow*>(made.get());
    QVERIFY2(window, qPrintable(component.errorString()));

    const auto ofOneCharacter = Hostile.size();
    QTRY_COMPARE(textItems(*window->contentItem()).size(), 11 + ofOneCharacter);
    for (const auto* text : textItems(*window->contentItem())) {
        QVERIFY2(isPlain(*text), qPrintable(textOf(text)));
    }
}

void PlainTextsTest::everyTextOfTheHomeTab_isPlain()
{
    HomeTab tab;
    tab.playerSays(quib::Player::Spotify, Hostile + u"||"_s + Hostile + u"||playing"_s);
    tab.grant({tab.event(Hostile, 5)});
    tab.store().startTimer(tab.workspace.client(Hostile), Hostile);
    tab.workspace.task(Hostile);
    tab.launch(Hostile, Hostile);
    auto* launch = tab.part(u"launchStrip"_s, u"launch"_s);
    tab.move(launch);
    auto* toolTip = launch->property("toolTip").value<QObject*>();
    QTRY_VERIFY(toolTip->property("opened").toBool());

    const auto texts = textItems(*tab.window->contentItem());

    QVERIFY(std::ranges::count(texts, Hostile, [](const auto* text) { return textOf(text); }) >= 7);
    for (const auto* text : texts) {
        QVERIFY2(isPlain(*text), qPrintable(textOf(text)));
    }
}

void PlainTextsTest::everyTextOfTheClientsTab_isPlain()
{
    const ClientBook book;
    book.change(book.cafe, [](quib::Client& edited) {
        edited.name = edited.siteURL = edited.folderPath = edited.notes = Hostile;
    });
    book.select(book.cafe);

    const auto texts = textItems(*book.item(u"clientsView"_s));

    QVERIFY(texts.size() > 10);
    for (const auto* text : texts) {
        QVERIFY2(isPlain(*text), qPrintable(textOf(text)));
    }
}

void PlainTextsTest::everyTextOfTheLinksTab_isPlain()
{
    LinksTab links;
    links.show({LinksTab::group(Hostile, {LinksTab::button(Hostile, Hostile)})});
    links.write(QByteArrayLiteral("broken"));
    links.show();

    const auto texts = textItems(*links.item(u"shortcutsView"_s));

    QCOMPARE(texts.size(), 3);
    for (const auto* text : texts) {
        QVERIFY2(isPlain(*text), qPrintable(textOf(text)));
    }
}

void PlainTextsTest::theWalk_tellsATextThatIsNot()
{
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQuick; Item { Item { Text { text: 'auto' } } }", {});
    const std::unique_ptr<QObject> root(component.create());

    const auto texts = textItems(*qobject_cast<QQuickItem*>(root.get()));

    QCOMPARE(texts.size(), 1);
    QVERIFY(!isPlain(*texts.front()));
}

QTEST_MAIN(PlainTextsTest)
#include "tst_plaintexts.moc"
