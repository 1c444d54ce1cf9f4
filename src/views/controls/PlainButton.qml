pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

import Quib.Controls

/*!
    A button that draws nothing of its own but a ring when the keyboard has come to it, and its help
    as a tooltip. A click leaves the focus where it is, so that a half-typed field goes on.
    Readers are told of `role`, `isCheckable` and `isChecked`: those that are attached are the template's,
    and only say that something has changed.
*/
T.AbstractButton {
    id: root

    property string help
    property real ringRadius: height / 2
    property int role: Accessible.Button
    property bool isCheckable: false
    property bool isChecked: false

    property QuibToolTip toolTip: null
    property FocusRing ring: null

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    opacity: root.down ? 0.75 : 1
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    Accessible.description: root.help
    Accessible.checkable: root.isCheckable
    Accessible.checked: root.isChecked

    onHoveredChanged: root.prepareToolTip()
    onVisualFocusChanged: {
        root.prepareToolTip();
        root.prepareRing();
    }

    Accessible.onPressAction: root.clicked()

    Keys.onReturnPressed: event => root.pressByKey(event)
    Keys.onEnterPressed: event => root.pressByKey(event)
    // The template would press again at each repeat.
    Keys.onSpacePressed: event => root.pressByKey(event)
    Keys.onReleased: event => event.accepted = event.key === Qt.Key_Space

    // A key that is held down presses once.
    function pressByKey(event) {
        if (!event.isAutoRepeat) {
            root.clicked();
        }
    }

    // Most buttons never meet the pointer, nor the keyboard.
    function prepareToolTip() {
        if (root.help !== "" && !root.toolTip) {
            root.toolTip = explanation.createObject(root);
        }
    }

    function prepareRing() {
        if (!root.ring) {
            root.ring = mark.createObject(root);
        }
    }

    Component {
        id: mark

        FocusRing {
            objectName: "focusRing"
            visible: root.visualFocus
            radius: root.ringRadius
        }
    }

    Component {
        id: explanation

        QuibToolTip {
            text: root.help
            visible: text !== "" && root.visible && !root.down && (root.hovered || root.visualFocus && !LastInput.isPointer)
        }
    }
}
