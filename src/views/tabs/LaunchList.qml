pragma ComponentBehavior: Bound

import QtQuick

import Quib.Views

/*!
    The quick-launch buttons side by side. One is the stop of the keyboard, and arrows and ends lead to
    the others. Where more of them lie out of sight the row fades away.
*/
FocusScope {
    id: root

    required property LaunchListModel items
    required property IconSource icons
    required property bool editing

    readonly property real room: 6 // Rings and badges stand out of the buttons.
    readonly property real fadeWidth: 24

    signal opened(target: string)
    signal removed(itemID: uuid)
    signal emptied(reason: int) // The button with the focus is gone, and no other is there.

    function remove(button, reason) {
        const hadFocus = button.activeFocus;
        root.removed(button.itemID);
        if (hadFocus) {
            list.forceLayout(); // The next one becomes the current one, or else the one before.
            root.focusCurrent(reason);
        }
    }

    function focusCurrent(reason) {
        const button = list.currentItem as LaunchButton;
        if (button) {
            button.focusButton(reason);
        } else {
            root.emptied(reason);
        }
    }

    function come(row) {
        list.currentIndex = row;
        root.reveal(row);
    }

    function reveal(row) {
        list.positionViewAtIndex(row, ListView.Contain);
        list.forceLayout(); // It may have been too far away to be there.
        const button = list.itemAtIndex(row);
        if (button) {
            const before = row === 0 ? root.room : root.fadeWidth;
            const after = row === list.count - 1 ? root.room : root.fadeWidth;
            list.contentX = Math.max(button.x + button.width + after - list.width,
                                     Math.min(list.contentX, button.x - before));
        }
    }

    function step(by) {
        if (list.count > 0) {
            list.currentIndex = Math.max(0, Math.min(list.currentIndex + by, list.count - 1));
            root.reveal(list.currentIndex);
            root.focusCurrent(Qt.TabFocusReason);
        }
    }

    function stepByKey(event) {
        event.accepted = true;
        switch (event.key) {
        case Qt.Key_Left: return root.step(-1);
        case Qt.Key_Right: return root.step(1);
        case Qt.Key_Home: return root.step(-list.count);
        case Qt.Key_End: return root.step(list.count);
        }
        event.accepted = false;
    }

    ListView {
        id: list

        objectName: "items"
        anchors.fill: parent
        anchors.leftMargin: -root.room
        anchors.rightMargin: -root.room
        leftMargin: root.room
        rightMargin: root.room
        orientation: ListView.Horizontal
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        focus: true
        highlightFollowsCurrentItem: false
        keyNavigationEnabled: false
        spacing: 8
        model: root.items
        Accessible.role: Accessible.List
        Accessible.name: "Quick launch"

        SidewaysWheel {
            flickable: list
        }

        delegate: LaunchButton {
            required property int index

            objectName: "item"
            y: (list.height - height) / 2
            icons: root.icons
            editing: root.editing
            isStop: ListView.isCurrentItem

            onActiveFocusChanged: if (activeFocus) root.come(index)
            onOpened: root.opened(target)
            onRemoved: byKey => root.remove(this, byKey ? Qt.TabFocusReason : Qt.OtherFocusReason)
        }

        Keys.onPressed: event => root.stepByKey(event)
    }

    Connections {
        target: root.items

        function onRowsInserted(parent, first, last) {
            if (root.editing && last === root.items.rowCount() - 1) {
                // Once the row knows of it. (The linter does not know callLater as a function.)
                Qt.callLater(root.reveal, last); // qmllint disable
            }
        }
    }

    Fade {
        objectName: "moreBefore"
        anchors.left: list.left
        visible: !list.atXBeginning
    }

    Fade {
        objectName: "moreAfter"
        anchors.right: list.right
        visible: !list.atXEnd
        rotation: 180
    }

    // To the panel's black.
    component Fade: Rectangle {
        width: root.fadeWidth
        height: root.height
        gradient: Gradient {
            orientation: Gradient.Horizontal

            GradientStop {
                position: 0
                color: "black"
            }
            GradientStop {
                position: 1
                color: "transparent"
            }
        }
    }
}
