import QtQuick

import Quib.Brand
import Quib.Controls
import Quib.Core
import Quib.Shapes
import Quib.Symbols

/*!
    One task: ticked off by its circle, deleted by the button that the pointer brings, or by a key.
*/
FocusScope {
    id: root

    required property uuid taskID
    required property string title
    required property bool done
    required property string clientName
    required property string clientStatus
    required property bool isStop

    readonly property bool hasTag: root.clientStatus !== ""
    readonly property bool isActive: hover.hovered || root.activeFocus

    signal toggled
    signal deleted

    implicitHeight: 26
    Accessible.role: Accessible.ListItem
    Accessible.name: root.title

    onActiveFocusChanged: if (!root.activeFocus) tick.focus = true // Where the keys come back to.

    Keys.onLeftPressed: tick.forceActiveFocus(Qt.TabFocusReason)
    Keys.onRightPressed: remove.forceActiveFocus(Qt.TabFocusReason)
    Keys.onDeletePressed: event => root.deleteByKey(event)
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Backspace) {
            root.deleteByKey(event);
        }
    }

    // A key that is held down deletes one.
    function deleteByKey(event) {
        event.accepted = true;
        if (!event.isAutoRepeat) {
            root.deleted();
        }
    }

    HoverHandler {
        id: hover
    }

    PlainButton {
        id: tick

        objectName: "tick"
        anchors.verticalCenter: parent.verticalCenter
        focus: true
        focusPolicy: root.isStop || root.activeFocus ? Qt.TabFocus : Qt.NoFocus
        role: Accessible.CheckBox
        isCheckable: true
        isChecked: root.done
        Accessible.name: (root.done ? "Mark open: %1" : "Mark done: %1").arg(root.title)

        onClicked: root.toggled()
        onDoubleClicked: {} // Its second press may be on another task.

        contentItem: Symbol {
            objectName: "symbol"
            name: root.done ? "checkmark.circle.fill" : "circle"
            size: 14
            color: root.done ? Brand.live : Brand.muted
        }
    }

    QuibText {
        id: titleText

        objectName: "title"
        anchors.left: tick.right
        anchors.leftMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, tag.maximumX - x - (root.hasTag ? tag.width + 8 : 0))
        text: root.title
        size: 12.5
        color: root.done ? Brand.muted2 : "white"
        strikeout: root.done
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    Item {
        id: tag

        readonly property real maximumX: root.width - 31

        objectName: "tag"
        anchors.left: titleText.right
        anchors.leftMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(name.implicitWidth, 140) + 14
        height: name.implicitHeight + 4
        visible: root.hasTag

        ContinuousRectangle {
            objectName: "capsule"
            anchors.fill: parent
            radius: height / 2
            color: Brand.color(root.clientStatus)
            opacity: 0.13
        }

        QuibText {
            id: name

            objectName: "clientName"
            x: 7
            y: 2
            width: parent.width - 14
            text: root.clientName
            size: 10
            weight: Font.Medium
            color: Brand.color(root.clientStatus)
            elide: Text.ElideRight
        }
    }

    IconButton {
        id: remove

        objectName: "remove"
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        visible: root.isActive
        focusPolicy: Qt.NoFocus
        symbol: "xmark"
        size: 9
        tint: Brand.muted
        help: "Delete"
        Accessible.name: "Delete: %1".arg(root.title)

        onClicked: root.deleted()
        onDoubleClicked: {} // Its second press is on the task that comes next.
    }
}
