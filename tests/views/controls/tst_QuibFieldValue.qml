import QtQuick
import QtTest

import Quib.Controls

TestCase {
    id: testCase

    name: "QuibFieldValue"
    width: 400
    height: 200
    visible: true
    when: windowShown

    Component {
        id: field

        QuibField {
            width: 150
        }
    }

    SignalSpy {
        id: edited

        signalName: "edited"
    }

    function input(made) {
        return findChild(made, "input");
    }

    // Where the text begins, in the field.
    function startOf(made) {
        const box = input(made).positionToRectangle(0);
        return input(made).mapToItem(made, box.x, box.y).x;
    }

    function test_saysItsValueFromItsBeginning() {
        const made = createTemporaryObject(field, testCase, { value: "A long text that does not fit into the field at all" });
        compare(made.text, made.value);
        compare(startOf(made), 9);
        made.value = "Another text that does not fit into the field";
        compare(made.text, made.value);
        compare(startOf(made), 9);
    }

    function test_sayingAValueIsNoEdit() {
        const made = createTemporaryObject(field, testCase, { value: "one" });
        edited.target = made;
        edited.clear();
        made.value = "two";
        compare(edited.count, 0);
        made.forceActiveFocus();
        keyClick("x");
        compare(edited.count, 1);
    }

    function test_anotherValueKeepsTheCursorAndTheSelection() {
        const made = createTemporaryObject(field, testCase, { value: "Corner Cafe" });
        made.forceActiveFocus();
        input(made).select(6, 2);
        made.value = "Cafeteria";
        compare(input(made).selectedText, "fete");
        compare(input(made).cursorPosition, 2);
        made.value = "Caf";
        compare(input(made).selectedText, "f");
        made.value = "";
        compare(input(made).cursorPosition, 0);
    }

    function test_theValueThatWasTypedKeepsWhatCanBeUndone() {
        const made = createTemporaryObject(field, testCase, { value: "a" });
        made.forceActiveFocus();
        keyClick("b");
        made.value = made.text;
        keySequence(StandardKey.Undo);
        compare(made.text, "a");
        made.value = "another";
        keySequence(StandardKey.Undo);
        compare(made.text, "another");
    }

    function test_aSettlingFieldWaitsUntilItIsLeft() {
        const made = createTemporaryObject(field, testCase, { value: "35", settles: true });
        made.forceActiveFocus();
        made.selectAll();
        keyClick("4");
        keyClick(",");
        made.value = "4";
        compare(made.text, "4,");
        made.focus = false;
        compare(made.text, "4");
        made.value = "5";
        compare(made.text, "5");
    }
}
