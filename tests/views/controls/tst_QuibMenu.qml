import QtQuick
import QtTest

import Quib.Controls

TestCase {
    id: testCase

    name: "QuibMenu"
    width: 760
    height: 330
    visible: true
    when: windowShown

    Component {
        id: opener

        Item {
            property alias menu: menu

            x: 300
            y: 40
            width: 140
            height: 24

            QuibMenu {
                id: menu

                model: [{ title: "No client" }, { separator: true }, { title: "Ana" }, { title: "<b>Bo</b>", checked: true }, { title: "Cy" }]
            }
        }
    }

    Component {
        id: records

        ListModel {
            ListElement { title: "One"; checked: false; separator: false }
            ListElement { title: "Two"; checked: true; separator: false }
        }
    }

    Component {
        id: field

        QuibField { }
    }

    Component {
        id: button

        PlainButton {
            property alias menu: menu

            width: 140
            height: 24

            QuibMenu {
                id: menu

                model: [{ title: "One" }, { title: "Two" }]
            }
        }
    }

    SignalSpy {
        id: activated

        signalName: "activated"
    }

    function open(properties) {
        const menu = createTemporaryObject(opener, testCase, properties).menu;
        activated.target = menu;
        activated.clear();
        menu.open();
        tryVerify(() => menu.opened);
        return menu;
    }

    function list(menu) {
        return menu.contentItem;
    }

    function many(count) {
        return Array.from({ length: count }, (_, index) => ({ title: "Client " + index }));
    }

    function test_listsItsEntriesBelowTheOpener() {
        const menu = open();
        compare(list(menu).count, 5);
        compare(list(menu).itemAtIndex(2).title, "Ana");
        compare(menu.y, 28);
        verify(menu.width >= menu.parent.width);
        verify(list(menu).itemAtIndex(3).checked);
        verify(!list(menu).itemAtIndex(2).checked);
    }

    function test_titlesAreShownAsTheyStand() {
        const title = findChild(list(open()).itemAtIndex(3), "title");
        compare(title.text, "<b>Bo</b>");
        compare(title.elide, Text.ElideRight);
    }

    function test_takesAListModelToo() {
        const menu = open();
        menu.model = createTemporaryObject(records, testCase);
        compare(list(menu).itemAtIndex(1).title, "Two");
        verify(list(menu).itemAtIndex(1).checked);
    }

    function test_aClickChoosesAndCloses() {
        const menu = open();
        mouseClick(list(menu).itemAtIndex(2));
        compare(activated.count, 1);
        compare(activated.signalArguments[0][0], 2);
        tryVerify(() => !menu.visible);
    }

    function test_aSeparatorCannotBeChosen() {
        const menu = open();
        mouseClick(list(menu).itemAtIndex(1));
        compare(activated.count, 0);
        verify(menu.opened);
    }

    function test_thePointerHighlights() {
        const menu = open();
        mouseMove(list(menu).itemAtIndex(4));
        compare(list(menu).currentIndex, 4);
        verify(list(menu).itemAtIndex(4).isHighlighted);
        mouseMove(testCase, 5, 5);
        compare(list(menu).currentIndex, -1);
    }

    function test_keysMoveOverTheSeparator() {
        const menu = open();
        keyClick(Qt.Key_Down);
        compare(list(menu).currentIndex, 0);
        keyClick(Qt.Key_Down);
        compare(list(menu).currentIndex, 2);
        keyClick(Qt.Key_Up);
        compare(list(menu).currentIndex, 0);
        keyClick(Qt.Key_Up);
        compare(list(menu).currentIndex, 0);
        keyClick(Qt.Key_End);
        compare(list(menu).currentIndex, 4);
        keyClick(Qt.Key_Down);
        compare(list(menu).currentIndex, 4);
        keyClick(Qt.Key_Home);
        compare(list(menu).currentIndex, 0);
    }

    function test_upFromNothingIsTheLast() {
        const menu = open();
        keyClick(Qt.Key_Up);
        compare(list(menu).currentIndex, 4);
    }

    function test_aKeyChooses_data() {
        return [{ tag: "Return", key: Qt.Key_Return }, { tag: "Enter", key: Qt.Key_Enter }, { tag: "Space", key: Qt.Key_Space }];
    }

    function test_aKeyChooses(row) {
        const menu = open();
        keyClick(row.key);
        compare(activated.count, 0);
        keyClick(Qt.Key_Down);
        keyClick(row.key);
        compare(activated.count, 1);
        compare(activated.signalArguments[0][0], 0);
        tryVerify(() => !menu.visible);
    }

    function test_escapeClosesWithoutAChoice() {
        const menu = open();
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Escape);
        tryVerify(() => !menu.visible);
        compare(activated.count, 0);
    }

    function test_aPressElsewhereOnlyCloses() {
        const menu = open();
        const typed = createTemporaryObject(field, testCase);
        mouseClick(typed);
        tryVerify(() => !menu.visible);
        compare(activated.count, 0);
    }

    function test_closedItGivesTheFocusBack() {
        const typed = createTemporaryObject(field, testCase);
        typed.forceActiveFocus();
        const menu = open();
        verify(!typed.isEditing);
        keyClick(Qt.Key_Escape);
        tryVerify(() => typed.isEditing);
    }

    function test_closedItLeavesTheRingWhereItWas_data() {
        return [{ tag: "chosen by key", reason: Qt.TabFocusReason, key: Qt.Key_Return, ring: true },
                { tag: "closed by key", reason: Qt.TabFocusReason, key: Qt.Key_Escape, ring: true },
                { tag: "opened by pointer", reason: Qt.MouseFocusReason, key: Qt.Key_Escape, ring: false }];
    }

    function test_closedItLeavesTheRingWhereItWas(row) {
        const opener = createTemporaryObject(button, testCase);
        opener.forceActiveFocus(row.reason);
        opener.menu.open();
        tryVerify(() => opener.menu.opened);
        keyClick(Qt.Key_Down);
        keyClick(row.key);
        tryVerify(() => opener.activeFocus);
        compare(opener.visualFocus, row.ring);
    }

    function test_closesWithItsOpener() {
        const menu = open();
        menu.parent.visible = false;
        tryVerify(() => !menu.visible);
    }

    function test_startsAtTheChosenEntryInSight() {
        const menu = createTemporaryObject(opener, testCase).menu;
        menu.model = many(200);
        menu.startIndex = 150;
        menu.open();
        tryVerify(() => menu.opened);
        compare(list(menu).currentIndex, 150);
        const row = list(menu).itemAtIndex(150);
        verify(row.y >= list(menu).contentY && row.y + row.height <= list(menu).contentY + list(menu).height);
    }

    function test_manyEntriesScrollInsideTheCard_data() {
        return [{ tag: "at the bottom right", x: 600, y: 260 }, { tag: "at the left", x: 20, y: 40 }];
    }

    function test_manyEntriesScrollInsideTheCard(row) {
        const menu = createTemporaryObject(opener, testCase, { x: row.x, y: row.y }).menu;
        menu.model = many(200);
        menu.open();
        tryVerify(() => menu.opened);
        const place = menu.contentItem.mapToItem(testCase, -menu.leftPadding, -menu.topPadding);
        verify(place.x >= 38 + 8, place.x); // The body of the card, and a gap.
        verify(place.x + menu.width <= 722 - 8, place.x + menu.width);
        verify(place.y >= 0);
        verify(place.y + menu.height <= 290 - 8, place.y + menu.height);
        keyClick(Qt.Key_End);
        compare(list(menu).currentIndex, 199);
        verify(list(menu).contentY > 4000);
        verify(list(menu).contentItem.children.length < 60); // Only what is seen is made.
    }
}
