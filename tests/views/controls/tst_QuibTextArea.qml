import QtQuick
import QtTest

import Quib.Brand
import Quib.Controls

TestCase {
    id: testCase

    name: "QuibTextArea"
    width: 400
    height: 300
    visible: true
    when: windowShown

    Component {
        id: area

        QuibTextArea {
            width: 200
            height: 60
            placeholder: "Notes"
        }
    }

    Component {
        id: field

        QuibField { y: 100 }
    }

    SignalSpy {
        id: edited

        signalName: "edited"
    }

    function make(properties) {
        const made = createTemporaryObject(area, testCase, properties);
        edited.target = made;
        edited.clear();
        return made;
    }

    function input(made) {
        return findChild(made, "input");
    }

    function cursorOf(made) {
        return Array.from(input(made).children).find(child => child.isLit !== undefined);
    }

    // Of the text drawn, in the area.
    function place(made, position) {
        const box = input(made).positionToRectangle(position);
        return input(made).mapToItem(made, box.x, box.y + box.height / 2);
    }

    function lines(count) {
        return Array.from({ length: count }, (_, index) => "line " + index).join("\n");
    }

    function test_looksAsAFieldDoes() {
        const made = make({ value: "x" });
        const surface = findChild(made, "surface");
        compare(surface.radius, 8);
        compare(surface.color, Brand.white(0.07));
        compare(input(made).font.pixelSize, 24); // Laid out at twice its size.
        compare(input(made).scale, 0.5);
        compare(place(made, 0).x, 9);
        compare(input(made).positionToRectangle(0).y / 2, 6);
    }

    function test_placeholderShowsWhileThereIsNoText() {
        const made = make();
        const placeholder = findChild(made, "placeholder");
        verify(placeholder.visible);
        compare(placeholder.color, Brand.muted);
        compare(placeholder.x, 9);
        compare(placeholder.y, 6);
        made.value = "x";
        verify(!placeholder.visible);
    }

    function test_pressAnywhereGivesItTheFocus_data() {
        return [{ tag: "on the text", x: 20, y: 12 }, { tag: "in the corner", x: 1, y: 1 }, { tag: "below the text", x: 195, y: 58 }];
    }

    function test_pressAnywhereGivesItTheFocus(row) {
        const made = make({ value: "Buy milk" });
        mouseClick(made, row.x, row.y);
        verify(made.isEditing);
    }

    function test_clickLandsOnTheRightCharacter_data() {
        return [0, 4, 9, 12].map(position => ({ tag: position, position: position }));
    }

    function test_clickLandsOnTheRightCharacter(row) {
        const made = make({ value: "Corner\nCafe w" });
        const point = place(made, row.position);
        mouseClick(made, point.x, point.y);
        compare(input(made).cursorPosition, row.position);
    }

    function test_theMouseSelectsAndDoesNotScroll() {
        const made = make({ value: lines(40) });
        const from = place(made, 0);
        const to = place(made, 11);
        mousePress(made, from.x, from.y);
        mouseMove(made, from.x + 12, from.y);
        mouseMove(made, to.x, to.y);
        mouseRelease(made, to.x, to.y);
        compare(input(made).selectedText, "line 0\nline");
        compare(findChild(made, "flickable").contentY, 0);
    }

    function test_cursorIsOnePointWide() {
        const made = make();
        made.forceActiveFocus();
        const cursor = cursorOf(made);
        tryVerify(() => cursor.visible);
        compare(cursor.width * input(made).scale, 1);
        verify(cursor.height > 10);
    }

    function test_theRingShowsForTheKeyboardOnly_data() {
        return [{ tag: "Tab", reason: Qt.TabFocusReason, shown: true }, { tag: "Backtab", reason: Qt.BacktabFocusReason, shown: true },
                { tag: "a shortcut", reason: Qt.ShortcutFocusReason, shown: true }, { tag: "the pointer", reason: Qt.MouseFocusReason, shown: false },
                { tag: "the view", reason: Qt.OtherFocusReason, shown: false }];
    }

    function test_theRingShowsForTheKeyboardOnly(row) {
        const made = make();
        const ring = findChild(made, "ring");
        verify(!ring.visible);
        made.forceActiveFocus(row.reason);
        compare(ring.visible, row.shown);
        made.focus = false;
        verify(!ring.visible);
    }

    function test_aPressEndsTheRing() {
        const made = make();
        made.forceActiveFocus(Qt.TabFocusReason);
        verify(findChild(made, "ring").visible);
        mouseClick(made);
        verify(!findChild(made, "ring").visible);
    }

    function test_returnMakesALine() {
        const made = make();
        made.forceActiveFocus();
        keyClick("a");
        keyClick(Qt.Key_Return);
        keyClick("b");
        compare(made.text, "a\nb");
        compare(edited.count, 3);
    }

    function test_longLinesAreWrapped() {
        const made = make({ value: "w".repeat(200) });
        verify(input(made).contentWidth <= 400);
        verify(input(made).lineCount > 3);
    }

    function test_sayingAValueIsNoEdit_data() {
        return [{ tag: "plain", value: "one\ntwo" }, { tag: "line ends of other systems", value: "one\r\ntwo\rthree" },
                { tag: "separators", value: "one\u2028two\u2029three" }, { tag: "a space that does not break", value: "one\u00a0two" },
                { tag: "nothing that is seen", value: "one\u0000two" }, { tag: "markup", value: "<b>one</b>" }];
    }

    function test_sayingAValueIsNoEdit(row) {
        const made = make({ value: row.value });
        compare(made.text, row.value);
        made.forceActiveFocus();
        keyClick(Qt.Key_Right);
        wait(0);
        made.value = "";
        made.value = row.value;
        compare(made.text, row.value);
        compare(edited.count, 0);
    }

    function test_anEditKeepsSpacesAndSeparators() {
        const made = make({ value: "one\u00a0two\u2028three" });
        made.forceActiveFocus();
        keyClick("x");
        compare(made.text, "xone\u00a0two\u2028three");
        compare(edited.count, 1);
    }

    function test_anotherValueKeepsTheCursorAndTheSelection() {
        const made = make({ value: "Corner Cafe" });
        made.forceActiveFocus();
        input(made).select(6, 2);
        made.value = "Cafeteria";
        compare(input(made).selectedText, "fete");
        compare(input(made).cursorPosition, 2);
        made.value = "Caf";
        compare(input(made).selectedText, "f");
    }

    function test_typedWordsCanBeUndone() {
        const made = make({ value: "a" });
        made.forceActiveFocus();
        keyClick("b");
        made.value = made.text;
        keySequence(StandardKey.Undo);
        compare(made.text, "a");
        made.value = "another";
        keySequence(StandardKey.Undo);
        compare(made.text, "another");
    }

    function test_theCursorStaysInSight() {
        const made = make({ value: lines(40) });
        const flickable = findChild(made, "flickable");
        compare(flickable.contentY, 0);
        made.forceActiveFocus();
        keySequence(StandardKey.MoveToEndOfDocument);
        verify(flickable.contentY > 300);
        const end = place(made, input(made).length);
        verify(end.y > 0 && end.y < 60, end.y);
        keySequence(StandardKey.MoveToStartOfDocument);
        compare(flickable.contentY, 0);
    }

    function test_theWheelScrolls() {
        const made = make({ value: lines(40) });
        mouseWheel(made, 50, 30, 0, -120);
        tryVerify(() => findChild(made, "flickable").contentY > 0);
    }

    function test_tabMovesOn() {
        const first = make({ value: "one" });
        const second = createTemporaryObject(field, testCase);
        first.forceActiveFocus();
        keyClick(Qt.Key_Tab);
        verify(second.isEditing);
        keyClick(Qt.Key_Backtab);
        verify(first.isEditing);
        compare(first.text, "one");
    }
}
