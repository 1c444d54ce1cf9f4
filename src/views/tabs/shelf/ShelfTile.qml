pragma ComponentBehavior: Bound

import QtQuick

import Quib.Controls
import Quib.Core
import Quib.Files
import Quib.Motion
import Quib.Shapes
import Quib.Symbols
import Quib.Texts

/*!
    One file on the shelf, by its icon and name. It is carried out by dragging, opened by a double click
    or a key, and taken away by the button that the pointer brings or by a key. It is dimmed while the
    file is not to be found.
*/
SidewaysItem {
    id: root

    required property uuid itemID
    required property string path
    required property string name
    required property IconSource icons
    required property FileProbe files
    required property bool isMotionReduced

    readonly property bool showsFocus: keyboard.isShown

    signal opened
    signal removed(byKey: bool)
    signal menuWanted(place: point)

    implicitWidth: 96 + 2 * 8
    implicitHeight: 64 + 6 + 28 + 2 * 8

    function focusBy(reason) {
        stop.forceActiveFocus(reason);
        keyboard.take(reason); // The list may have given it the focus without.
    }

    function isMenuKey(event) {
        return event.key === Qt.Key_Menu || (event.key === Qt.Key_F10 && event.modifiers & Qt.ShiftModifier);
    }

    // A key that is held down does it once.
    function act(event) {
        event.accepted = true;
        if (event.isAutoRepeat) {
            return;
        }
        switch (event.key) {
        case Qt.Key_Return:
        case Qt.Key_Enter: return root.opened();
        case Qt.Key_Delete:
        case Qt.Key_Backspace: return root.removed(true);
        }
        if (root.isMenuKey(event)) {
            return root.menuWanted(Qt.point(root.width / 2, root.height - 20));
        }
        event.accepted = false;
    }

    FileState {
        id: file

        probe: root.files
        path: root.path
    }

    // Files come and go while they are looked at.
    Beat {
        interval: 2

        onBeat: file.ask()
    }

    HoverHandler {
        id: hover
    }

    TapHandler {
        onPressedChanged: if (pressed) root.focusBy(Qt.MouseFocusReason)
        onDoubleTapped: root.opened()
    }

    TapHandler {
        acceptedButtons: Qt.RightButton

        onTapped: point => root.menuWanted(point.position)
    }

    DragHandler {
        target: null

        onActiveChanged: if (active) FileDrag.start(icon, file.isThere ? root.path : "")
    }

    Item {
        id: stop

        objectName: "stop"
        anchors.fill: parent
        focus: true
        activeFocusOnTab: root.isStop || activeFocus
        Accessible.role: Accessible.ListItem
        Accessible.name: TextLine.beginning(root.name)
        Accessible.description: TextLine.ends(root.path) + (file.isThere || file.isUnknown ? "" : ", missing")
        Accessible.focusable: true

        Accessible.onPressAction: root.opened()

        Keys.onPressed: event => root.act(event)
        Keys.onShortcutOverride: event => event.accepted = root.isMenuKey(event)
    }

    ContinuousRectangle {
        objectName: "surface"
        anchors.fill: parent
        radius: 12
        color: "white"
        opacity: hover.hovered ? 0.08 : 0.04

        Behavior on opacity {
            enabled: !root.isMotionReduced

            NumberAnimation {
                duration: 350
                easing.type: Easing.InOutQuad
            }
        }
    }

    Item {
        id: picture

        objectName: "picture"
        x: (root.width - width) / 2
        y: 8
        width: 64
        height: 64
        opacity: file.isThere ? 1 : 0.3

        FileIcon {
            id: icon

            objectName: "icon"
            anchors.fill: parent
            source: root.icons
            path: file.isUnknown ? "" : root.path // Whoever looked for it would hang too.
        }

        Symbol {
            objectName: "unknown"
            anchors.centerIn: parent
            visible: file.isUnknown && !file.isThere
            name: "doc"
            size: 48
        }
    }

    QuibText {
        objectName: "name"
        x: 8
        y: picture.y + picture.height + 6 + (28 - height) / 2
        width: 96
        text: root.name
        size: 10.5
        horizontalAlignment: Text.AlignHCenter
        maximumLines: 2
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    KeyboardFocus {
        id: keyboard

        item: stop
    }

    FocusRing {
        objectName: "ring"
        visible: keyboard.isShown
        radius: 14
    }

    PlainButton {
        objectName: "remove"
        anchors.right: parent.right
        anchors.top: parent.top
        padding: 4
        focusPolicy: Qt.NoFocus
        visible: hover.hovered
        Accessible.name: "Remove %1".arg(TextLine.beginning(root.name))

        onClicked: root.removed(false)
        onDoubleClicked: {} // Its second press may be on the tile that comes next.

        contentItem: Item {
            implicitWidth: 15
            implicitHeight: 15

            Rectangle {
                objectName: "badge"
                anchors.fill: parent
                radius: 7.5
                color: Qt.rgba(0, 0, 0, 0.7)
            }

            Symbol {
                anchors.centerIn: parent
                name: "xmark"
                size: 7
                weight: Font.Bold
            }
        }
    }
}
