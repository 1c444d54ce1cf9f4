#include "desktop/desk/deskconnection.h"
#include "desktop/desk/reader.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

/// What a screen reader is told of the running program, asked for on the accessibility bus.
class AccessibilityWalkTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyTab_isToldWhole_data();
    void everyTab_isToldWhole();
    void collapsed_nothingShows();
    void tasks_areCheckBoxesInAList();
    void field_isReadAndEdited();
    void focus_isAnnounced();
    void tabs_arePressed();
    void pin_isCheckedWhereItIsPressed();
};

namespace {

const QStringList Titles{u"Home"_s, u"Shortcuts"_s, u"Clients"_s, u"Tasks"_s,
                         u"Time"_s, u"Shelf"_s,     u"Notes"_s};

QByteArray workspace(int many)
{
    const auto id = [](int kind, int number) {
        return u"%1-1111-4111-8111-%2"_s.arg(kind, 8, 10, QChar(u'1'))
            .arg(number, 12, 10, QChar(u'0'));
    };
    QJsonArray clients;
    QJsonArray tasks;
    QJsonArray entries;
    QJsonArray launch;
    const auto now = QDateTime::currentDateTimeUtc();
    for (int i = 0; i < many; ++i) {
        clients << QJsonObject{{u"id"_s, id(2, i)},
                               {u"name"_s, u"Client %1"_s.arg(i)},
                               {u"status"_s, u"build"_s},
                               {u"siteURL"_s, u"site%1.example"_s.arg(i)},
                               {u"folderPath"_s, u"/usr"_s},
                               {u"hourlyRate"_s, 40},
                               {u"notes"_s, u"first line\nsecond line"_s}};
        tasks << QJsonObject{{u"id"_s, id(3, i)},
                             {u"title"_s, u"Task %1"_s.arg(i)},
                             {u"done"_s, i % 3 == 2},
                             {u"created"_s, now.toString(Qt::ISODate)},
                             {u"clientID"_s, id(2, i / 4)}};
        entries << QJsonObject{{u"id"_s, id(4, i)},
                               {u"clientID"_s, id(2, i)},
                               {u"note"_s, u"work"_s},
                               {u"start"_s, now.addSecs(-3600).toString(Qt::ISODate)},
                               {u"end"_s, now.toString(Qt::ISODate)}};
        launch << QJsonObject{{u"id"_s, id(5, i)},
                              {u"name"_s, u"Site %1"_s.arg(i)},
                              {u"target"_s, u"https://site%1.example"_s.arg(i)}};
    }
    return QJsonDocument(QJsonObject{{u"clients"_s, clients},
                                     {u"tasks"_s, tasks},
                                     {u"entries"_s, entries},
                                     {u"shelf"_s, QJsonArray()},
                                     {u"launch"_s, launch},
                                     {u"notes"_s, QString()}})
        .toJson();
}

/// The panel, open by a second start, and a reader of it.
struct ReadDesk : Desk {
    Reader reader{*this};
    Program quib;

    explicit ReadDesk(int many = 3, int scale = 1)
        : Desk({.scale = scale})
    {
        writeData(workspace(many));
        quib = start(Desk::quib());
        reader.panel();
        runQuib();
        waitFor("the open panel", [this] { return bool(reader.panel().find(u"page tab"_s)); });
    }

    /// By key; told once its tab is.
    Told showTab(int number)
    {
        key(u"ctrl+%1"_s.arg(number + 1));
        Told panel;
        waitFor("the tab", [&] {
            panel = reader.panel();
            const auto* tab = panel.find(u"page tab"_s, Titles.at(number));
            return tab && tab->is(state::Selected);
        });
        return panel;
    }

    /// Once it shows: what a tab is made of may be told a frame later than its tab.
    Told find(const QString& role, const QString& name = {})
    {
        Told found;
        waitFor("what is to be shown", [&] {
            const auto panel = reader.panel();
            const auto* thing = panel.find(role, name);
            found = thing ? *thing : Told();
            return thing != nullptr;
        });
        return found;
    }
};

bool showsSomething(const QImage& picture, const QRect& place)
{
    QSet<QRgb> colours;
    const auto seen = place & picture.rect();
    for (int y = seen.top(); y <= seen.bottom(); ++y) {
        for (int x = seen.left(); x <= seen.right(); ++x) {
            colours << picture.pixel(x, y);
        }
    }
    return colours.size() > 1;
}

bool isContainer(const Told& thing)
{
    return thing.role == "list"_L1 || thing.role == "frame"_L1 || !thing.parts.empty();
}

/// What is wrong with what is told of one thing; empty where nothing is.
QString faultOf(const Told& thing, const Told& parent, const QRect& card, const QImage& picture)
{
    if (thing.name.isEmpty() && (thing.is(state::Focusable) || thing.canBePressed())) {
        return u"has no name"_s;
    }
    if (thing.role.isEmpty() || thing.role == "unknown"_L1) {
        return u"has no role"_s;
    }
    if (!card.contains(thing.place)) {
        return u"is not on the card"_s;
    }
    if (!parent.place.adjusted(-1, -1, 1, 1).contains(thing.place)) { // Less than a dot is rounded.
        return u"is not within '%1'"_s.arg(parent.name);
    }
    // What a list cuts may be its padding, or lie under the fade.
    const bool isSliver = std::min(thing.place.width(), thing.place.height()) < 12;
    if (!isContainer(thing) && !isSliver && !showsSomething(picture, thing.place)) {
        return u"is told where nothing is drawn"_s;
    }
    return {};
}

/// Of all that is shown below.
QStringList faults(const Told& parent, const QRect& card, const QImage& picture)
{
    QStringList found;
    for (const auto& thing : parent.parts) {
        const auto fault
            = thing.is(state::Showing) ? faultOf(thing, parent, card, picture) : QString();
        if (!fault.isEmpty()) {
            found << u"%1 '%2' at %3,%4, %5 x %6, %7"_s.arg(thing.role, thing.name)
                         .arg(thing.place.x())
                         .arg(thing.place.y())
                         .arg(thing.place.width())
                         .arg(thing.place.height())
                         .arg(fault);
        }
        found << faults(thing, card, picture);
    }
    return found;
}

QStringList selectedTabs(const Told& panel)
{
    QStringList selected;
    for (const auto* thing : panel.shown()) {
        if (thing->role == "page tab"_L1 && thing->is(state::Selected)) {
            selected << thing->name;
        }
    }
    return selected;
}

} // namespace

void AccessibilityWalkTest::everyTab_isToldWhole_data()
{
    QTest::addColumn<int>("many");
    QTest::addColumn<int>("scale");
    QTest::addColumn<QRect>("card");

    QTest::addRow("empty") << 0 << 1 << QRect(450, 0, 700, 290);
    QTest::addRow("rich") << 40 << 1 << QRect(450, 0, 700, 290);
    QTest::addRow("scale 2") << 4 << 2 << QRect(100, 0, 1400, 580);
}

void AccessibilityWalkTest::everyTab_isToldWhole()
{
    QFETCH(const int, many);
    QFETCH(const int, scale);
    QFETCH(const QRect, card);
    ReadDesk desk(many, scale);

    for (int number = 0; number < Titles.size(); ++number) {
        const auto panel = desk.showTab(number);

        QCOMPARE(panel.role, u"frame"_s);
        QCOMPARE(selectedTabs(panel), QStringList{Titles.at(number)});
        QCOMPARE(desk.find(u"page tab list"_s).parts.size(), std::size_t(Titles.size()));
        QTRY_COMPARE(faults(desk.reader.panel(), card, desk.picture()).join(u'\n'), QString());
    }
}

void AccessibilityWalkTest::collapsed_nothingShows()
{
    ReadDesk desk;
    desk.showTab(3);

    desk.reader.press(desk.find(u"check box"_s, u"Keep open"_s));
    desk.moveTo(Desk::FarAway);

    QTRY_COMPARE(desk.reader.panel().shown().size(), std::size_t(1)); // The window itself.
}

void AccessibilityWalkTest::tasks_areCheckBoxesInAList()
{
    ReadDesk desk;
    desk.showTab(3);
    desk.find(u"list item"_s, u"Task 2"_s);
    const auto list = desk.find(u"list"_s, u"Tasks"_s);
    const auto* row = list.find(u"list item"_s, u"Task 0"_s);
    QVERIFY(row && list.find(u"list item"_s, u"Task 2"_s));
    const auto* box = row->find(u"check box"_s);
    QVERIFY(box && !box->is(state::Checked));

    desk.reader.press(*box);

    QTRY_VERIFY(desk.data().value("tasks"_L1)[0]["done"_L1].toBool());
    QTRY_VERIFY(desk.reader.heard.contains(u"checked "_s + box->path));
}

void AccessibilityWalkTest::field_isReadAndEdited()
{
    ReadDesk desk;
    desk.showTab(2);
    desk.reader.press(desk.find(u"list item"_s, u"Client 1"_s));
    const auto field = desk.find(u"text"_s, u"Website URL"_s);
    QVERIFY(field.is(state::Editable));
    QCOMPARE(desk.reader.textOf(field), u"site1.example"_s);
    const auto second = desk.reader.placeOf(field, 1);
    QVERIFY(field.place.contains(second));
    QVERIFY(second.left() > desk.reader.placeOf(field, 0).left());

    desk.reader.setText(field, u"else.example"_s);

    QTRY_COMPARE(desk.data().value("clients"_L1)[1]["siteURL"_L1].toString(), u"else.example"_s);
    QCOMPARE(desk.reader.cursorOf(field), 12);
}

void AccessibilityWalkTest::focus_isAnnounced()
{
    ReadDesk desk;
    desk.showTab(3);
    const auto field = desk.find(u"text"_s).path;
    QTRY_VERIFY(desk.reader.heard.contains(u"focused "_s + field));
    const auto chooser = desk.find(u"combo box"_s).path;

    desk.key(u"Tab"_s);

    QTRY_COMPARE(desk.reader.heard.last(), u"focused "_s + chooser);
    QVERIFY(desk.find(u"combo box"_s).is(state::Focused));
}

void AccessibilityWalkTest::tabs_arePressed()
{
    ReadDesk desk;

    desk.reader.press(desk.find(u"page tab"_s, u"Time"_s));

    QTRY_COMPARE(selectedTabs(desk.reader.panel()), QStringList{u"Time"_s});
    desk.find(u"push button"_s, u"Start"_s);
}

void AccessibilityWalkTest::pin_isCheckedWhereItIsPressed()
{
    ReadDesk desk;
    desk.moveTo(Desk::InTheCard);
    const auto pin = desk.find(u"check box"_s, u"Keep open"_s);
    QVERIFY(pin.is(state::Checked)); // By the second start.

    desk.reader.press(pin);
    QTRY_VERIFY(!desk.find(u"check box"_s, u"Keep open"_s).is(state::Checked));
    desk.reader.press(pin);

    QTRY_VERIFY(desk.reader.heard.contains(u"checked "_s + pin.path));
}

QTEST_GUILESS_MAIN(AccessibilityWalkTest)
#include "tst_accessibilitywalk.moc"
