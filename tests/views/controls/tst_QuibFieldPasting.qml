import QtQuick
import QtTest

import Quib.Controls

TestCase {
    id: testCase

    name: "QuibFieldPasting"
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

    // The clipboard is filled by copying from another field, which may hold anything.
    function pasteInto(made, text) {
        const source = createTemporaryQmlObject("import QtQuick; TextEdit { }", testCase);
        source.text = text;
        source.selectAll();
        source.copy();
        made.forceActiveFocus();
        keySequence(StandardKey.Paste);
    }

    function test_pastedLineBreaksBecomeBlanks_data() {
        return [{ tag: "a line with its end", pasted: "cafe.example\n", shown: "Corner cafe.example Cafe" },
                { tag: "lines", pasted: "\n one\ntwo\n", shown: "Corner one two Cafe" },
                { tag: "a word with its blanks", pasted: " x ", shown: "Corner  x  Cafe" }];
    }

    function test_pastedLineBreaksBecomeBlanks(row) {
        const made = createTemporaryObject(field, testCase, { value: "Corner Old Cafe" });
        edited.target = made;
        edited.clear();
        made.forceActiveFocus();
        input(made).select(7, 10);
        pasteInto(made, row.pasted);
        compare(made.text, row.shown);
        compare(input(made).cursorPosition, row.shown.length - 5);
        verify(edited.count > 0);
    }

    function test_aPasteIsOneStepToUndo() {
        const made = createTemporaryObject(field, testCase);
        made.forceActiveFocus();
        keyClick("a");
        keyClick("b");
        pasteInto(made, "x\ny");
        keyClick("c");
        compare(made.text, "abx yc");
        keySequence(StandardKey.Undo);
        compare(made.text, "abx y");
        keySequence(StandardKey.Undo);
        compare(made.text, "ab");
        keySequence(StandardKey.Redo);
        compare(made.text, "abx y");
    }

    function test_breaksThatAreThereStayWhileOtherTextIsPasted() {
        const made = createTemporaryObject(field, testCase, { value: "one\ntwo" });
        made.forceActiveFocus();
        keyClick(Qt.Key_End);
        pasteInto(made, "\nthree");
        compare(made.text, "one\ntwothree");
    }

    function test_whatMayOnlyBeReadIsNotPastedInto() {
        const made = createTemporaryObject(field, testCase, { text: "one", readOnly: true });
        pasteInto(made, "two");
        compare(made.text, "one");
    }
}
