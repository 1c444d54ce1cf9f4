#include "desktop/desk/readdesk.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// What a screen reader does with the running program, on the accessibility bus.
class AccessibilityUseTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tasks_areCheckBoxesInAList();
    void field_isReadAndEdited();
    void focus_isAnnounced();
    void tabs_arePressed();
    void pin_isCheckedWhereItIsPressed();
};

void AccessibilityUseTest::tasks_areCheckBoxesInAList()
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

void AccessibilityUseTest::field_isReadAndEdited()
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

void AccessibilityUseTest::focus_isAnnounced()
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

void AccessibilityUseTest::tabs_arePressed()
{
    ReadDesk desk;

    desk.reader.press(desk.find(u"page tab"_s, u"Time"_s));

    QTRY_COMPARE(selectedTabs(desk.reader.panel()), QStringList{u"Time"_s});
    desk.find(u"push button"_s, u"Start"_s);
}

void AccessibilityUseTest::pin_isCheckedWhereItIsPressed()
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

QTEST_GUILESS_MAIN(AccessibilityUseTest)
#include "tst_accessibilityuse.moc"
