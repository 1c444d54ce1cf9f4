#include <QAccessible>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/// What somebody is told who does not see the panel.
class AccessibilityTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void control_saysWhatItIs_data();
    void control_saysWhatItIs();
    void partOfAButton_saysNothingOfItsOwn();
    void button_canBePressed_data();
    void button_canBePressed();
    void chip_saysWhetherItIsSelected();
    void segments_sayWhichIsSelected();
    void readerThatComesLate_isToldTheSame();
    void place_isWhereItIsDrawn();
    void whatIsScrolledAway_isOffscreen();
    void field_givesItsText();
    void field_isEditedByItsReader();
    void fieldsCharacters_haveTheirPlaces_data();
    void fieldsCharacters_haveTheirPlaces();
    void help_describesWhatIsNotNamedByIt();
    void menu_saysWhatItsEntriesAre();

private:
    QQuickItem* make(const QByteArray& control);

    QQmlEngine m_engine;
    QQuickWindow m_window;
    std::unique_ptr<QObject> m_made;
};

namespace {

/// Those below an item that a reader is told of, in order.
QList<QAccessibleInterface*> told(QQuickItem* item)
{
    QList<QAccessibleInterface*> found;
    auto* self = QAccessible::queryAccessibleInterface(item);
    for (int i = 0; self && i < self->childCount(); ++i) {
        found << self->child(i);
    }
    return found;
}

} // namespace

void AccessibilityTest::initTestCase()
{
    QAccessible::setActive(true);
    m_engine.addImportPath(u"qrc:/qt/qml"_s);
    m_window.resize(400, 300);
    m_window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&m_window));
}

QQuickItem* AccessibilityTest::make(const QByteArray& control)
{
    QQmlComponent component(&m_engine);
    component.setData("import QtQuick\nimport Quib.Controls\n" + control, {});
    m_made.reset(component.create());
    auto* item = qobject_cast<QQuickItem*>(m_made.get());
    if (item) {
        item->setParentItem(m_window.contentItem());
    } else {
        qWarning() << component.errorString();
    }
    return item;
}

void AccessibilityTest::control_saysWhatItIs_data()
{
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<int>("role");
    QTest::addColumn<QString>("name");

    QTest::addRow("text") << "QuibText { text: 'Track time' }"_ba << int(QAccessible::StaticText)
                          << u"Track time"_s;
    QTest::addRow("heading") << "SectionLabel { text: 'Today' }"_ba << int(QAccessible::StaticText)
                             << u"Today"_s;
    QTest::addRow("digits") << "DigitsText { text: '1:02:05' }"_ba << int(QAccessible::StaticText)
                            << u"1:02:05"_s;
    QTest::addRow("pill") << "PillButton { title: 'Start' }"_ba << int(QAccessible::Button)
                          << u"Start"_s;
    QTest::addRow("icon") << "IconButton { symbol: 'xmark'; help: 'Remove' }"_ba
                          << int(QAccessible::Button) << u"Remove"_s;
    QTest::addRow("chip") << "FilterChip { title: 'All' }"_ba << int(QAccessible::RadioButton)
                          << u"All"_s;
    QTest::addRow("other role")
        << "PlainButton { role: Accessible.PageTab; Accessible.name: 'Home' }"_ba
        << int(QAccessible::PageTab) << u"Home"_s;
    QTest::addRow("segments")
        << "SegmentedPicker { name: 'Period'; titles: ['Week', 'Month']; selected: 1 }"_ba
        << int(QAccessible::Grouping) << u"Period: Month"_s;
}

void AccessibilityTest::control_saysWhatItIs()
{
    QFETCH(QByteArray, control);
    QFETCH(int, role);
    QFETCH(QString, name);

    auto* interface = QAccessible::queryAccessibleInterface(make(control));

    QVERIFY(interface);
    QCOMPARE(int(interface->role()), role);
    QCOMPARE(interface->text(QAccessible::Name), name);
}

void AccessibilityTest::partOfAButton_saysNothingOfItsOwn()
{
    QVERIFY(told(make("PillButton { title: 'Start'; symbol: 'plus' }")).isEmpty());
    QVERIFY(told(make("DigitsText { text: '1:02:05' }")).isEmpty());
}

void AccessibilityTest::button_canBePressed_data()
{
    QTest::addColumn<QByteArray>("control");

    QTest::addRow("pill") << "PillButton { title: 'Start' }"_ba;
    QTest::addRow("icon") << "IconButton { symbol: 'xmark'; help: 'Remove' }"_ba;
    QTest::addRow("chip") << "FilterChip { title: 'All' }"_ba;
}

void AccessibilityTest::button_canBePressed()
{
    QFETCH(QByteArray, control);
    auto* item = make(control);
    const auto* type = item->metaObject();
    const QSignalSpy clicks(item, type->method(type->indexOfSignal("clicked()")));
    auto* interface = QAccessible::queryAccessibleInterface(item);
    QVERIFY(interface && interface->actionInterface());

    interface->actionInterface()->doAction(interface->actionInterface()->actionNames().front());

    QCOMPARE(clicks.count(), 1);
}

void AccessibilityTest::chip_saysWhetherItIsSelected()
{
    const auto* chosen = QAccessible::queryAccessibleInterface(
        make("FilterChip { title: 'All'; selected: true }"));
    QVERIFY(chosen->state().checkable);
    QVERIFY(chosen->state().checked);

    const auto* other = QAccessible::queryAccessibleInterface(make("FilterChip { title: 'All' }"));
    QVERIFY(!other->state().checked);
}

void AccessibilityTest::segments_sayWhichIsSelected()
{
    const auto segments
        = told(make("SegmentedPicker { name: 'Period'; titles: ['Week', 'Month']; selected: 1 }"));

    QCOMPARE(segments.size(), 2);
    QCOMPARE(segments[0]->text(QAccessible::Name), u"Week"_s);
    QVERIFY(!segments[0]->state().checked);
    QVERIFY(segments[1]->state().checked);
}

void AccessibilityTest::field_givesItsText()
{
    auto* item = make("QuibField { placeholder: 'Add a task'; text: 'Buy milk' }");

    auto* interface = QAccessible::queryAccessibleInterface(
        item->findChild<QQuickItem*>(u"input"_s));

    QVERIFY(interface);
    QCOMPARE(interface->role(), QAccessible::EditableText);
    QCOMPARE(interface->text(QAccessible::Name), u"Add a task"_s);
    QVERIFY(interface->textInterface());
    QCOMPARE(interface->textInterface()->text(0, 8), u"Buy milk"_s);
}

void AccessibilityTest::readerThatComesLate_isToldTheSame()
{
    QAccessible::setActive(false);
    auto* pin = make("PlainButton { role: Accessible.CheckBox; Accessible.name: 'Keep open'\n"
                     "isCheckable: true; isChecked: true }");
    QAccessible::setActive(true); // Qt's templates now say again what they are.

    const auto* told = QAccessible::queryAccessibleInterface(pin);

    QCOMPARE(told->role(), QAccessible::CheckBox);
    QCOMPARE(told->text(QAccessible::Name), u"Keep open"_s);
    QVERIFY(told->state().checkable && told->state().checked);
}

void AccessibilityTest::place_isWhereItIsDrawn()
{
    const auto origin = m_window.mapToGlobal(QPoint(0, 0));
    auto* field = make("QuibField { x: 20; y: 30; width: 100; text: 'Buy milk' }");
    const auto* told
        = QAccessible::queryAccessibleInterface(field->findChild<QQuickItem*>(u"input"_s));

    // Without its padding, and with room for the cursor at the end.
    QCOMPARE(told->rect(), QRectF(origin.x() + 29, origin.y() + 30, 81, field->height()).toRect());
}

void AccessibilityTest::whatIsScrolledAway_isOffscreen()
{
    auto* list = make("ListView { width: 100; height: 40; clip: true; model: 4; Accessible.role: "
                      "Accessible.List\n"
                      "delegate: PillButton { title: 'Row ' + index; height: 20 } }");
    QTRY_VERIFY(told(list).size() >= 3);

    QVERIFY(!told(list)[1]->state().offscreen);
    QVERIFY(told(list)[2]->state().offscreen);
}

void AccessibilityTest::field_isEditedByItsReader()
{
    auto* field = make("QuibField { text: 'Buy milk' }");
    const auto* type = field->metaObject();
    const QSignalSpy edits(field, type->method(type->indexOfSignal("edited()")));
    auto* told = QAccessible::queryAccessibleInterface(field->findChild<QQuickItem*>(u"input"_s));

    told->editableTextInterface()->replaceText(4, 8, u"bread"_s);

    QCOMPARE(field->property("text").toString(), u"Buy bread"_s);
    QCOMPARE(told->text(QAccessible::Value), u"Buy bread"_s);
    QVERIFY(edits.count() > 0);
}

void AccessibilityTest::fieldsCharacters_haveTheirPlaces_data()
{
    QTest::addColumn<QByteArray>("control");

    QTest::addRow("one line") << "QuibField { x: 20; y: 30; text: 'Buy milk' }"_ba;
    QTest::addRow("many lines")
        << "QuibTextArea { x: 20; y: 30; width: 160; height: 60; value: 'Buy milk\nand bread' }"_ba;
    QTest::addRow("a book") << "QuibTextArea { x: 20; y: 30; width: 160; height: 60\n"
                               "value: 'Buy milk\nand bread\n'.repeat(5000) + 'and jam' }"_ba;
}

void AccessibilityTest::fieldsCharacters_haveTheirPlaces()
{
    QFETCH(QByteArray, control);
    auto* field = make(control);
    auto* told = QAccessible::queryAccessibleInterface(field->findChild<QQuickItem*>(u"input"_s));
    auto* text = told->textInterface();
    QVERIFY(text);

    const auto first = text->characterRect(0);
    const auto fifth = text->characterRect(4);

    QVERIFY(told->rect().contains(first));
    QVERIFY(first.width() > 3 && first.width() < 12); // As drawn: at half the size it is laid out.
    QVERIFY(first.height() > 8 && first.height() < 24);
    QVERIFY(fifth.left() > first.right());
    QCOMPARE(text->offsetAtPoint(first.center()), 0);
    QCOMPARE(text->offsetAtPoint(fifth.center()), 4);
    const auto last = text->characterRect(text->characterCount() - 1);
    QCOMPARE(text->offsetAtPoint(last.center()), text->characterCount() - 1);
    QCOMPARE(text->offsetAtPoint(last.center() + QPoint(40, 0)), text->characterCount());
    QCOMPARE(text->offsetAtPoint(told->rect().bottomRight() + QPoint(1, 1)), -1);
}

void AccessibilityTest::help_describesWhatIsNotNamedByIt()
{
    const auto* pill = QAccessible::queryAccessibleInterface(
        make("PillButton { title: 'Korvel'; help: 'https://korvel.org' }"));
    QCOMPARE(pill->text(QAccessible::Description), u"https://korvel.org"_s);

    const auto* icon
        = QAccessible::queryAccessibleInterface(make("IconButton { symbol: 'xmark'; help: 'Go' }"));
    QCOMPARE(icon->text(QAccessible::Description), QString());
}

void AccessibilityTest::menu_saysWhatItsEntriesAre()
{
    auto* list = make("MenuList { width: 200; height: 100; Accessible.role: Accessible.PopupMenu\n"
                      "model: [{ title: 'No client', checked: true }, { separator: true }] }");
    QCOMPARE(QAccessible::queryAccessibleInterface(list)->role(), QAccessible::PopupMenu);

    QTRY_COMPARE(told(list).size(), 1); // The line between groups is none.
    const auto* entry = told(list).first();
    QCOMPARE(entry->role(), QAccessible::MenuItem);
    QCOMPARE(entry->text(QAccessible::Name), u"No client"_s);
    QVERIFY(entry->state().checked);
}

QTEST_MAIN(AccessibilityTest)
#include "tst_accessibility.moc"
