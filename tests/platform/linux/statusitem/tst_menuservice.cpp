#include "platform/linux/statusitem/menuonbus.h"

#include <QDBusMetaType>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <limits>
#include <memory>

using namespace Qt::StringLiterals;
using namespace quib;

/// The menu as a status bar reads it.
class MenuServiceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void properties_data();
    void properties();
    void layout_isTheMenuInFull();
    void layout_doublesLowLines();
    void layout_asDeepAsAskedFor_data();
    void layout_asDeepAsAskedFor();
    void layout_givesOnlyTheNamedProperties();
    void groupProperties_ofTheNamedItems_data();
    void groupProperties_ofTheNamedItems();
    void property_isGivenAlone();
    void setMenu_checkMark_tellsOnlyThat();
    void setMenu_otherLayout_tellsAGrowingRevision();
    void setMenu_same_tellsNothing();
    void malformedCall_isRefused_data();
    void malformedCall_isRefused();
    void hugeLists_areAnsweredBriefly();

    void hear(const QDBusMessage& message) { m_heard.append(message); }

private:
    void listen();
    QStringList heard() const;

    std::unique_ptr<ItemOnBus> m_item;
    std::unique_ptr<QSignalSpy> m_choices;
    QList<QDBusMessage> m_heard;
};

namespace {

QList<int> idsOf(const QList<MenuProperties>& group)
{
    QList<int> ids;
    std::ranges::transform(group, std::back_inserter(ids), &MenuProperties::id);
    return ids;
}

} // namespace

void MenuServiceTest::init()
{
    m_item = std::make_unique<ItemOnBus>();
    m_choices = std::make_unique<QSignalSpy>(m_item->get(), &StatusItem::chosen);
    m_heard.clear();
}

void MenuServiceTest::cleanup()
{
    m_choices.reset();
    m_item.reset();
}

/// To the signals of the menu from here on.
void MenuServiceTest::listen()
{
    m_item->finishReading(); // What it told at its making has gone out before the answer.
    for (const auto& name : {u"LayoutUpdated"_s, u"ItemsPropertiesUpdated"_s}) {
        QVERIFY(m_item->host().connect(m_item->name(), u"/MenuBar"_s, u"com.canonical.dbusmenu"_s,
                                       name, this, SLOT(hear(QDBusMessage))));
    }
    m_item->finishReading(); // The bus has learned of it by then.
}

/// The names of the signals that came so far.
QStringList MenuServiceTest::heard() const
{
    m_item->finishReading(); // The signals come before the answer.
    QCoreApplication::sendPostedEvents();
    QStringList names;
    std::ranges::transform(m_heard, std::back_inserter(names), &QDBusMessage::member);
    return names;
}

void MenuServiceTest::properties_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariant>("value");

    QTest::addRow("Version") << u"Version"_s << QVariant(3U);
    QTest::addRow("Status") << u"Status"_s << QVariant(u"normal"_s);
    QTest::addRow("TextDirection") << u"TextDirection"_s << QVariant(u"ltr"_s);
    QTest::addRow("IconThemePath") << u"IconThemePath"_s << QVariant(QStringList());
}

void MenuServiceTest::properties()
{
    QFETCH(const QString, name);

    const auto all = m_item->properties(u"/MenuBar"_s, u"com.canonical.dbusmenu"_s);

    QTEST(all.value(name), "value");
}

void MenuServiceTest::layout_isTheMenuInFull()
{
    const auto menu = layoutOf(*m_item);

    QCOMPARE(menu.id, 0);
    QCOMPARE(menu.properties.value(u"children-display"_s), u"submenu"_s);
    QCOMPARE(linesOf(menu),
             QStringList({u"Open Quib"_s, u"Keep Open (Pin) [ ]"_s, u"--"_s,
                          u"Launch at Login [ ]"_s, u"Edit Shortcuts…"_s, u"Show Data Folder"_s,
                          u"--"_s, u"Quit Korvel Quib Control+q"_s}));
    for (const auto& child : menu.children) {
        QCOMPARE(nodeIn(child).properties.value(u"enabled"_s), true);
        QCOMPARE(nodeIn(child).properties.value(u"visible"_s), true);
    }
}

void MenuServiceTest::layout_doublesLowLines()
{
    (*m_item)->setMenu({{.title = u"a_b__c"_s}});

    QCOMPARE(linesOf(layoutOf(*m_item)), QStringList(u"a__b____c"_s));
}

void MenuServiceTest::layout_asDeepAsAskedFor_data()
{
    QTest::addColumn<int>("parent");
    QTest::addColumn<int>("depth");
    QTest::addColumn<qsizetype>("lines");

    QTest::addRow("the menu alone") << 0 << 0 << qsizetype(0);
    QTest::addRow("its lines") << 0 << 1 << qsizetype(8);
    QTest::addRow("everything") << 0 << -1 << qsizetype(8);
    QTest::addRow("far below zero") << 0 << std::numeric_limits<int>::min() << qsizetype(8);
    QTest::addRow("deeper than it is") << 0 << std::numeric_limits<int>::max() << qsizetype(8);
    QTest::addRow("one line, which holds none") << QuitId << -1 << qsizetype(0);
}

void MenuServiceTest::layout_asDeepAsAskedFor()
{
    QFETCH(const int, parent);
    QFETCH(const int, depth);

    const auto menu = layoutOf(*m_item, parent, depth);

    QCOMPARE(menu.id, parent);
    QTEST(menu.children.size(), "lines");
}

void MenuServiceTest::layout_givesOnlyTheNamedProperties()
{
    const auto menu = layoutOf(*m_item, 0, -1, {u"toggle-state"_s, u"unknown"_s});

    QVERIFY(menu.properties.isEmpty());
    QVERIFY(nodeIn(menu.children[0]).properties.isEmpty());
    QCOMPARE(nodeIn(menu.children[PinRow]).properties, QVariantMap({{u"toggle-state"_s, 0}}));
}

void MenuServiceTest::groupProperties_ofTheNamedItems_data()
{
    QTest::addColumn<QList<int>>("asked");
    QTest::addColumn<QList<int>>("given");

    QTest::addRow("two") << QList<int>{2, 8} << QList<int>{2, 8};
    QTest::addRow("all") << QList<int>{} << QList<int>{0, 1, 2, 3, 4, 5, 6, 7, 8};
    QTest::addRow("one, again and again") << QList<int>{2, 2, 2} << QList<int>{2};
    QTest::addRow("unknown ones") << QList<int>{-1, 9, 2, 1'000'000} << QList<int>{2};
}

void MenuServiceTest::groupProperties_ofTheNamedItems()
{
    QFETCH(const QList<int>, asked);

    const auto reply = m_item->callMenu(u"GetGroupProperties"_s,
                                        {QVariant::fromValue(asked), QStringList{u"label"_s}});
    const auto group = qdbus_cast<QList<MenuProperties>>(reply.arguments().value(0));

    QTEST(idsOf(group), "given");
}

void MenuServiceTest::property_isGivenAlone()
{
    const auto reply = m_item->callMenu(u"GetProperty"_s, {QuitId, u"label"_s});

    QCOMPARE(qdbus_cast<QDBusVariant>(reply.arguments().value(0)).variant(), u"Quit Korvel Quib"_s);
}

void MenuServiceTest::setMenu_checkMark_tellsOnlyThat()
{
    listen();

    (*m_item)->setMenu(pinnedMenu());

    QCOMPARE(heard(), QStringList(u"ItemsPropertiesUpdated"_s));
    const auto updated = qdbus_cast<QList<MenuProperties>>(m_heard.first().arguments().value(0));
    QCOMPARE(idsOf(updated), QList<int>{PinId});
    QCOMPARE(updated.first().properties, QVariantMap({{u"toggle-state"_s, 1}}));
}

void MenuServiceTest::setMenu_otherLayout_tellsAGrowingRevision()
{
    const auto before
        = m_item->callMenu(u"GetLayout"_s, {0, 0, QStringList()}).arguments().value(0).toUInt();
    listen();

    (*m_item)->setMenu({{.title = u"One"_s}});
    (*m_item)->setMenu({{.title = u"Two"_s}});

    QCOMPARE(heard(), QStringList({u"LayoutUpdated"_s, u"LayoutUpdated"_s}));
    QCOMPARE(m_heard[0].arguments(), QVariantList({before + 1, 0}));
    QCOMPARE(m_heard[1].arguments(), QVariantList({before + 2, 0}));
    QCOMPARE(linesOf(layoutOf(*m_item)), QStringList(u"Two"_s));
}

void MenuServiceTest::setMenu_same_tellsNothing()
{
    listen();

    (*m_item)->setMenu(quibMenu());

    QCOMPARE(heard(), QStringList());
}

void MenuServiceTest::malformedCall_isRefused_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QVariantList>("arguments");

    const auto noIds = QVariant::fromValue(QList<int>());
    QTest::addRow("layout of nobody") << u"GetLayout"_s << QVariantList{9, -1, QStringList()};
    QTest::addRow("layout of a negative id")
        << u"GetLayout"_s << QVariantList{std::numeric_limits<int>::min(), -1, QStringList()};
    QTest::addRow("layout of a text") << u"GetLayout"_s << QVariantList{u"0"_s, -1, QStringList()};
    QTest::addRow("layout of nothing") << u"GetLayout"_s << QVariantList{};
    QTest::addRow("properties of texts")
        << u"GetGroupProperties"_s << QVariantList{QStringList{u"1"_s}, QStringList()};
    QTest::addRow("property of nobody") << u"GetProperty"_s << QVariantList{-1, u"label"_s};
    QTest::addRow("unknown property") << u"GetProperty"_s << QVariantList{1, u"colour"_s};
    QTest::addRow("property named by a number") << u"GetProperty"_s << QVariantList{1, 1};
    QTest::addRow("event of nobody")
        << u"Event"_s << QVariantList{std::numeric_limits<int>::max(), u"clicked"_s, noData(), 0U};
    QTest::addRow("event without data") << u"Event"_s << QVariantList{QuitId, u"clicked"_s};
    QTest::addRow("event in a wrong order")
        << u"Event"_s << QVariantList{u"clicked"_s, QuitId, noData(), 0U};
    QTest::addRow("group of bare numbers") << u"EventGroup"_s << QVariantList{noIds};
    QTest::addRow("opening nobody") << u"AboutToShow"_s << QVariantList{-7};
    QTest::addRow("opening a list") << u"AboutToShow"_s << QVariantList{noIds};
    QTest::addRow("no such method") << u"Explode"_s << QVariantList{};
}

void MenuServiceTest::malformedCall_isRefused()
{
    QFETCH(const QString, method);
    QFETCH(const QVariantList, arguments);

    const auto reply = m_item->callMenu(method, arguments);

    QCOMPARE(reply.type(), QDBusMessage::ErrorMessage);
    QCOMPARE(linesOf(layoutOf(*m_item)).size(), 8);
    QCOMPARE(m_choices->size(), 0);
}

void MenuServiceTest::hugeLists_areAnsweredBriefly()
{
    QList<int> ids;
    for (int n = 0; n < 100'000; ++n) {
        ids << n % 10;
    }
    const QSignalSpy openings(m_item->get(), &StatusItem::menuWillOpen);

    const auto properties
        = m_item->callMenu(u"GetGroupProperties"_s, {QVariant::fromValue(ids), QStringList()});
    m_item->callMenu(u"AboutToShowGroup"_s, {QVariant::fromValue(ids)});

    QCOMPARE(idsOf(qdbus_cast<QList<MenuProperties>>(properties.arguments().value(0))).size(), 9);
    QCOMPARE(openings.size(), 1);
}

QTEST_MAIN(MenuServiceTest)
#include "tst_menuservice.moc"
