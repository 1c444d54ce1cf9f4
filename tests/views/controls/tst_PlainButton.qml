import QtQuick
import QtTest

import Quib.Controls

TestCase {
    id: testCase

    name: "PlainButton"
    width: 300
    height: 200
    visible: true
    when: windowShown

    Component {
        id: button

        PlainButton {
            contentItem: Item {
                implicitWidth: 40
                implicitHeight: 20
            }
        }
    }

    Component {
        id: field

        QuibField { y: 50 }
    }

    SignalSpy {
        id: clicks

        signalName: "clicked"
    }

    function init() {
        mouseMove(testCase, 290, 190);
        clicks.clear();
    }

    function make(properties) {
        clicks.target = createTemporaryObject(button, testCase, properties);
        return clicks.target;
    }

    function test_isAsLargeAsItsContent() {
        const plain = make();
        compare(plain.implicitWidth, 40);
        compare(plain.implicitHeight, 20);
    }

    function test_saysThatItWasClicked() {
        mouseClick(make());
        compare(clicks.count, 1);
    }

    function test_pressedItFadesALittle() {
        const plain = make();
        mousePress(plain);
        compare(plain.opacity, 0.75);
        mouseRelease(plain);
        compare(plain.opacity, 1);
    }

    function test_aKeyPressesTheFocusedButton_data() {
        return [{ tag: "Return", key: Qt.Key_Return }, { tag: "Enter", key: Qt.Key_Enter }, { tag: "Space", key: Qt.Key_Space }];
    }

    function test_aKeyPressesTheFocusedButton(row) {
        make().forceActiveFocus(Qt.TabFocusReason);
        keyClick(row.key);
        compare(clicks.count, 1);
    }

    function test_disabledItDoesNothing() {
        const plain = make({ enabled: false });
        mouseClick(plain);
        plain.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Return);
        compare(clicks.count, 0);
    }

    function test_aClickLeavesTheFocusInAHalfTypedField() {
        const typed = createTemporaryObject(field, testCase);
        typed.forceActiveFocus();
        mouseClick(make());
        verify(typed.isEditing);
    }

    function test_tabReachesIt() {
        const typed = createTemporaryObject(field, testCase);
        const plain = make();
        typed.forceActiveFocus();
        keyClick(Qt.Key_Tab);
        verify(plain.visualFocus);
    }

    function test_theRingShowsForTheKeyboardOnly() {
        const plain = make();
        const isRingShown = () => Array.from(plain.children).some(child => child.strokeWidth === 1.5 && child.visible);
        verify(!isRingShown());
        plain.forceActiveFocus(Qt.MouseFocusReason);
        verify(!isRingShown());
        plain.focus = false;
        plain.forceActiveFocus(Qt.TabFocusReason);
        verify(isRingShown());
        plain.focus = false;
        verify(!isRingShown());
    }

    function test_helpShowsAfterAMomentUnderThePointer() {
        const plain = make({ help: "Keep open" });
        compare(plain.toolTip, null);
        mouseMove(plain);
        compare(plain.toolTip.delay, 600);
        verify(!plain.toolTip.opened);
        tryVerify(() => plain.toolTip.opened);
        compare(plain.toolTip.contentItem.text, "Keep open");
        verify(plain.toolTip.y >= plain.height);
        mouseMove(testCase, 290, 190);
        tryVerify(() => !plain.toolTip.visible);
    }

    function test_helpGoesAwayWithItsButton() {
        const plain = make({ help: "Keep open" });
        mouseMove(plain);
        tryVerify(() => plain.toolTip.opened);
        plain.visible = false;
        tryVerify(() => !plain.toolTip.visible);
    }

    function test_withoutHelpThereIsNoToolTip() {
        const plain = make();
        mouseMove(plain);
        verify(plain.hovered);
        compare(plain.toolTip, null);
    }
}
