import QtQuick
import QtTest

import Quib.Brand
import Quib.Controls

TestCase {
    id: testCase

    name: "QuibField"
    width: 400
    height: 200
    visible: true
    when: windowShown

    Component {
        id: field

        QuibField {
            width: 150
            placeholder: "Add a task and press Return…"
        }
    }

    Component {
        id: other

        QuibField { y: 60 }
    }

    SignalSpy {
        id: accepted

        signalName: "accepted"
    }

    function input(made) {
        return findChild(made, "input");
    }

    function cursorOf(made) {
        return Array.from(input(made).children).find(child => child.isLit !== undefined);
    }

    // Of the text drawn, in the field.
    function place(made, position) {
        const box = input(made).positionToRectangle(position);
        return input(made).mapToItem(made, box.x, box.y + box.height / 2);
    }

    function test_isTwelvePointsRegularInItsPadding() {
        const made = createTemporaryObject(field, testCase);
        const label = createTemporaryQmlObject("import Quib.Controls; QuibText { size: 12; text: 'x' }", testCase);
        compare(input(made).font.pixelSize, 24); // Laid out at twice its size.
        compare(input(made).font.weight, Font.Normal);
        fuzzyCompare(made.implicitHeight, label.implicitHeight + 12, 0.01);
        made.text = "x";
        compare(place(made, 0).x, 9);
    }

    function test_surfaceIsTranslucentWithRoundCorners() {
        const surface = findChild(createTemporaryObject(field, testCase), "surface");
        compare(surface.radius, 8);
        compare(surface.color, Brand.white(0.07));
        compare(surface.strokeColor.a, 0);
    }

    function test_placeholderShowsWhileThereIsNoText() {
        const made = createTemporaryObject(field, testCase);
        const placeholder = findChild(made, "placeholder");
        verify(placeholder.visible);
        compare(placeholder.color, Brand.muted);
        compare(placeholder.x, 9);
        compare(placeholder.y, 6);
        made.text = "x";
        verify(!placeholder.visible);
    }

    function test_pressAnywhereGivesItTheFocus_data() {
        return [{ tag: "on the text", x: 30, y: 13 }, { tag: "left padding", x: 2, y: 13 }, { tag: "right padding", x: 148, y: 13 },
                { tag: "top padding", x: 30, y: 1 }, { tag: "bottom padding", x: 30, y: 25 }];
    }

    function test_pressAnywhereGivesItTheFocus(row) {
        const made = createTemporaryObject(field, testCase, { text: "Buy milk" });
        verify(!made.isEditing);
        mouseClick(made, row.x, row.y);
        verify(made.isEditing);
        verify(input(made).activeFocus);
    }

    function test_thePaddingBelongsToTheText() {
        const made = createTemporaryObject(field, testCase, { text: "Corner Cafe" });
        made.forceActiveFocus(Qt.TabFocusReason);
        mouseDrag(made, 2, 13, 146, 0);
        compare(input(made).selectedText, "Corner Cafe");
        mouseClick(made, 2, 13);
        compare(input(made).selectedText, "");
        compare(input(made).cursorPosition, 0);
        mouseClick(made, 146, 13, Qt.LeftButton, Qt.ShiftModifier);
        compare(input(made).selectedText, "Corner Cafe");
        mouseDoubleClickSequence(made, 146, 13);
        compare(input(made).selectedText, "Cafe");
    }

    function test_clickLandsOnTheRightCharacter_data() {
        return [0, 1, 4, 8, 12].map(position => ({ tag: position, position: position }));
    }

    function test_clickLandsOnTheRightCharacter(row) {
        const made = createTemporaryObject(field, testCase, { text: "Corner Cafe w" });
        const point = place(made, row.position);
        mouseClick(made, point.x, point.y);
        compare(input(made).cursorPosition, row.position);
    }

    function test_theMouseSelects() {
        const made = createTemporaryObject(field, testCase, { text: "Corner Cafe" });
        const from = place(made, 0);
        const to = place(made, 6);
        mousePress(made, from.x, from.y);
        mouseMove(made, from.x + 12, from.y);
        mouseMove(made, to.x, to.y);
        mouseRelease(made, to.x, to.y);
        compare(input(made).selectedText, "Corner");
        compare(input(made).selectionColor, Brand.purple);
    }

    function test_doubleClickSelectsAWord() {
        const made = createTemporaryObject(field, testCase, { text: "Corner Cafe" });
        const point = place(made, 8);
        mouseDoubleClickSequence(made, point.x, point.y);
        compare(input(made).selectedText, "Cafe");
    }

    function test_cursorIsOnePointWide() {
        const made = createTemporaryObject(field, testCase);
        made.forceActiveFocus();
        const cursor = cursorOf(made);
        tryVerify(() => cursor.visible);
        compare(cursor.width * input(made).scale, 1);
    }

    function test_cursorStaysLitWhileItMoves() {
        const made = createTemporaryObject(field, testCase);
        made.forceActiveFocus();
        const cursor = cursorOf(made);
        cursor.isLit = false;
        keyClick("x");
        verify(cursor.isLit);
    }

    function test_withoutTheFocusNoCursorBlinks() {
        const made = createTemporaryObject(field, testCase);
        verify(!input(made).cursorVisible);
        verify(!cursorOf(made)?.visible);
    }

    function test_longTextScrollsWithTheCursorInsideThePadding() {
        const made = createTemporaryObject(field, testCase);
        made.forceActiveFocus();
        made.text = "A long text that does not fit into the field at all";
        const end = place(made, made.text.length);
        verify(end.x <= 150 - 9 + 0.5);
        verify(end.x > 100);
        keyClick(Qt.Key_Home);
        compare(place(made, 0).x, 9);
    }

    function test_atTheEndOfALongTextTheCursorIsInSightAndStaysLit() {
        const made = createTemporaryObject(field, testCase, { text: "A long text that does not fit into the field at all" });
        made.forceActiveFocus();
        keyClick(Qt.Key_End);
        const cursor = cursorOf(made);
        verify(cursor.mapToItem(made, cursor.width, 0).x <= 150 - 9);
        cursor.isLit = false;
        keyClick("x");
        verify(cursor.isLit);
    }

    function test_typedWordsCanBeUndone() {
        const made = createTemporaryObject(field, testCase);
        made.forceActiveFocus();
        keyClick("a");
        keyClick("b");
        compare(made.text, "ab");
        keySequence(StandardKey.Undo);
        compare(made.text, "");
    }

    function test_theRingShowsForTheKeyboardOnly_data() {
        return [{ tag: "Tab", reason: Qt.TabFocusReason, shown: true }, { tag: "Backtab", reason: Qt.BacktabFocusReason, shown: true },
                { tag: "a shortcut", reason: Qt.ShortcutFocusReason, shown: true }, { tag: "the pointer", reason: Qt.MouseFocusReason, shown: false },
                { tag: "the view", reason: Qt.OtherFocusReason, shown: false }];
    }

    function test_theRingShowsForTheKeyboardOnly(row) {
        const made = createTemporaryObject(field, testCase);
        const ring = findChild(made, "ring");
        verify(!ring.visible);
        made.forceActiveFocus(row.reason);
        compare(ring.visible, row.shown);
        made.focus = false;
        verify(!ring.visible);
    }

    function test_aPressEndsTheRing() {
        const made = createTemporaryObject(field, testCase);
        made.forceActiveFocus(Qt.TabFocusReason);
        verify(findChild(made, "ring").visible);
        mouseClick(made);
        verify(!findChild(made, "ring").visible);
    }

    function test_returnAcceptsAndKeepsTheFocus() {
        const made = createTemporaryObject(field, testCase, { text: "Buy milk" });
        accepted.target = made;
        accepted.clear();
        made.forceActiveFocus();
        keyClick(Qt.Key_Return);
        compare(accepted.count, 1);
        verify(made.isEditing);
        compare(made.text, "Buy milk");
    }

    function test_withoutPaddingItIsAsHighAsItsText() {
        const made = createTemporaryObject(field, testCase, { horizontalPadding: 0, verticalPadding: 0, surfaceColor: "transparent", text: "x" });
        compare(made.implicitHeight, input(made).implicitHeight / 2);
        compare(place(made, 0).x, 0);
        compare(findChild(made, "surface").color.a, 0);
    }

    function test_tabMovesOn() {
        const first = createTemporaryObject(field, testCase);
        const second = createTemporaryObject(other, testCase);
        first.forceActiveFocus();
        keyClick(Qt.Key_Tab);
        verify(second.isEditing);
        keyClick(Qt.Key_Backtab);
        verify(first.isEditing);
    }
}
