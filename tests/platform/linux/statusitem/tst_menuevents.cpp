#include "platform/linux/statusitem/menuonbus.h"

#include <QProcess>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace quib;

/// What a status bar tells the menu that its user does.
class MenuEventsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aboutToShow_bringsCheckMarksUpToDate();
    void aboutToShow_nothingChanged_isFalse();
    void aboutToShow_ofAnItem_doesNotOpenTheMenu();
    void aboutToShowGroup_tellsWhatChangedAndWhatIsUnknown();
    void opened_bringsCheckMarksUpToDate();
    void clicked_choosesTheRow();
    void clicked_isAnsweredBeforeTheCommand();
    void clicked_theProgramQuits_isAnswered();
    void clickedInAGroup_choosesTheRow();
    void clicked_onAnEarlierLayout_choosesNothing();
    void otherEvents_chooseNothing_data();
    void otherEvents_chooseNothing();

private:
    QStringList lines() const { return linesOf(layoutOf(*m_item)); }

    std::unique_ptr<ItemOnBus> m_item;
    std::unique_ptr<QSignalSpy> m_choices;
};

namespace {

const auto Clicked = u"clicked"_s;

} // namespace

void MenuEventsTest::init()
{
    m_item = std::make_unique<ItemOnBus>();
    m_choices = std::make_unique<QSignalSpy>(m_item->get(), &StatusItem::chosen);
}

void MenuEventsTest::cleanup()
{
    m_choices.reset();
    m_item.reset();
}

void MenuEventsTest::aboutToShow_bringsCheckMarksUpToDate()
{
    connect(m_item->get(), &StatusItem::menuWillOpen, this,
            [this] { (*m_item)->setMenu(pinnedMenu()); });

    const auto reply = m_item->callMenu(u"AboutToShow"_s, {0});

    QCOMPARE(reply.arguments(), QVariantList{true});
    QCOMPARE(lines()[PinRow], u"Keep Open (Pin) [x]"_s);
}

void MenuEventsTest::aboutToShow_nothingChanged_isFalse()
{
    const QSignalSpy openings(m_item->get(), &StatusItem::menuWillOpen);

    const auto reply = m_item->callMenu(u"AboutToShow"_s, {0});

    QCOMPARE(reply.arguments(), QVariantList{false});
    QCOMPARE(openings.size(), 1);
}

void MenuEventsTest::aboutToShow_ofAnItem_doesNotOpenTheMenu()
{
    const QSignalSpy openings(m_item->get(), &StatusItem::menuWillOpen);

    const auto reply = m_item->callMenu(u"AboutToShow"_s, {PinId});

    QCOMPARE(reply.arguments(), QVariantList{false});
    QCOMPARE(openings.size(), 0);
}

void MenuEventsTest::aboutToShowGroup_tellsWhatChangedAndWhatIsUnknown()
{
    connect(m_item->get(), &StatusItem::menuWillOpen, this,
            [this] { (*m_item)->setMenu(pinnedMenu()); });

    const auto reply
        = m_item->callMenu(u"AboutToShowGroup"_s, {QVariant::fromValue(QList<int>{0, PinId, 99})});

    QCOMPARE(qdbus_cast<QList<int>>(reply.arguments().value(0)), QList<int>{0});
    QCOMPARE(qdbus_cast<QList<int>>(reply.arguments().value(1)), QList<int>{99});
}

void MenuEventsTest::opened_bringsCheckMarksUpToDate()
{
    connect(m_item->get(), &StatusItem::menuWillOpen, this,
            [this] { (*m_item)->setMenu(pinnedMenu()); });

    m_item->callMenu(u"Event"_s, {0, u"opened"_s, noData(), 0U});

    QCOMPARE(lines()[PinRow], u"Keep Open (Pin) [x]"_s);
}

void MenuEventsTest::clicked_choosesTheRow()
{
    const auto reply = m_item->callMenu(u"Event"_s, {QuitId, Clicked, noData(), 0U});

    QCOMPARE(reply.type(), QDBusMessage::ReplyMessage);
    QTRY_COMPARE(m_choices->size(), 1);
    QCOMPARE(m_choices->first(), QVariantList{QuitRow});
}

void MenuEventsTest::clicked_isAnsweredBeforeTheCommand()
{
    auto click = QDBusMessage::createMethodCall(m_item->name(), u"/MenuBar"_s,
                                                u"com.canonical.dbusmenu"_s, u"Event"_s);
    click << QuitId << Clicked << noData() << 0U;
    QDBusPendingCall call = m_item->host().asyncCall(click, 5000);
    connect(m_item->get(), &StatusItem::chosen, this, [&call] { call.waitForFinished(); });

    QTRY_COMPARE(m_choices->size(), 1);

    QCOMPARE(call.reply().type(), QDBusMessage::ReplyMessage);
}

void MenuEventsTest::clicked_theProgramQuits_isAnswered()
{
    for (int round = 0; round < 10; ++round) {
        QProcess program;
        program.start(QStringLiteral(STATUS_PROGRAM), QStringList());
        QVERIFY(program.waitForReadyRead());
        const auto name = QString::fromLatin1(program.readLine().trimmed());
        auto click = QDBusMessage::createMethodCall(name, u"/MenuBar"_s,
                                                    u"com.canonical.dbusmenu"_s, u"Event"_s);
        click << QuitId << Clicked << noData() << 0U;

        const auto reply = m_item->host().call(click);

        QCOMPARE(reply.type(), QDBusMessage::ReplyMessage);
        QVERIFY(program.waitForFinished());
    }
}

void MenuEventsTest::clickedInAGroup_choosesTheRow()
{
    const QList<MenuEvent> events{{PinId, Clicked, QDBusVariant(0), 0},
                                  {99, Clicked, QDBusVariant(0), 0},
                                  {QuitId, u"hovered"_s, QDBusVariant(0), 0}};

    const auto reply = m_item->callMenu(u"EventGroup"_s, {QVariant::fromValue(events)});

    QCOMPARE(qdbus_cast<QList<int>>(reply.arguments().value(0)), QList<int>{99});
    QTRY_COMPARE(m_choices->size(), 1);
    QCOMPARE(m_choices->first(), QVariantList{PinRow});
}

void MenuEventsTest::clicked_onAnEarlierLayout_choosesNothing()
{
    (*m_item)->setMenu({{.title = u"Quit"_s}, {.title = u"Open"_s}});

    const auto reply = m_item->callMenu(u"Event"_s, {1, Clicked, noData(), 0U});
    m_item->finishReading();

    QCOMPARE(reply.type(), QDBusMessage::ErrorMessage);
    QCOMPARE(m_choices->size(), 0);
}

void MenuEventsTest::otherEvents_chooseNothing_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("kind");

    QTest::addRow("a click on a separator") << SeparatorRow + 1 << Clicked;
    QTest::addRow("a click on the menu") << 0 << Clicked;
    QTest::addRow("hovered") << QuitId << u"hovered"_s;
    QTest::addRow("closed") << 0 << u"closed"_s;
    QTest::addRow("opened, of a line") << QuitId << u"opened"_s;
    QTest::addRow("in capitals") << QuitId << u"CLICKED"_s;
    QTest::addRow("nothing") << QuitId << QString();
}

void MenuEventsTest::otherEvents_chooseNothing()
{
    QFETCH(const int, id);
    QFETCH(const QString, kind);

    const auto reply = m_item->callMenu(u"Event"_s, {id, kind, noData(), 0U});
    m_item->finishReading();

    QCOMPARE(reply.type(), QDBusMessage::ReplyMessage);
    QCOMPARE(m_choices->size(), 0);
}

QTEST_MAIN(MenuEventsTest)
#include "tst_menuevents.moc"
