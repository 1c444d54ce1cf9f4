pragma ComponentBehavior: Bound

import QtQuick

/*!
    Items side by side, made by a delegate that is a SidewaysItem. One is the stop of the keyboard, and
    arrows and ends lead to the others.
*/
FocusScope {
    id: root

    property alias model: list.model
    property alias delegate: list.delegate
    property alias spacing: list.spacing
    property alias interactive: list.interactive
    property string name
    property real room: 6 // Rings and badges stand out of the items.
    property bool showsAdded: false // Brings what is added at the end into sight.

    readonly property int count: list.count
    readonly property Item currentItem: list.currentItem

    signal emptied(reason: int) // The item with the focus is gone, and no other is there.

    // What `removal` takes away may have the focus: then the next one gets it, or else the one before.
    function removeItem(item, reason, removal) {
        const hadFocus = item.activeFocus;
        removal();
        if (hadFocus) {
            list.forceLayout();
            root.focusCurrent(reason);
        }
    }

    function focusCurrent(reason) {
        const item = list.currentItem as SidewaysItem;
        if (item) {
            item.focusBy(reason);
        } else {
            root.emptied(reason);
        }
    }

    // To be told by an item that has the focus.
    function come(row) {
        list.currentIndex = row;
        root.reveal(row);
    }

    function reveal(row) {
        edges.revealRow(row);
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
        cacheBuffer: 0 // Or what is made beforehand is a stop of the keyboard before it is whole.
        clip: true
        focus: true
        highlightFollowsCurrentItem: false
        keyNavigationEnabled: false
        spacing: 8
        Accessible.role: Accessible.List
        Accessible.name: root.name

        SidewaysWheel {
            flickable: list
        }

        Keys.onPressed: event => root.stepByKey(event)
    }

    Connections {
        target: root.model as QtObject
        enabled: root.showsAdded

        function onRowsInserted(parent, first, last) {
            if (last === list.model.rowCount() - 1) {
                // Once the row knows of it. (The linter does not know callLater as a function.)
                Qt.callLater(root.reveal, last); // qmllint disable
            }
        }
    }

    ScrollEdges {
        id: edges

        flickable: list
    }
}
