pragma ComponentBehavior: Bound

import QtQuick

import Quib.Brand

/*!
    The entries of a menu, one of them highlighted by the pointer or the keyboard.
*/
ListView {
    id: root

    signal activated(int index)

    implicitHeight: contentHeight
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    currentIndex: -1
    highlightFollowsCurrentItem: false
    interactive: contentHeight > height
    keyNavigationEnabled: false

    delegate: MenuRow {
        required property int index
        required property var model

        readonly property var entry: model.modelData ?? model // Null while a row goes.

        width: root.width
        title: entry?.title ?? ""
        symbol: entry?.symbol ?? ""
        checked: entry?.checked ?? false
        isSeparator: entry?.separator ?? false
        isHighlighted: root.currentIndex === index

        onHoveredChanged: root.follow(index, hovered)
        onClicked: root.activated(index)

        // Taken from the template, which would click at each repeat.
        Keys.onPressed: event => root.activateByKey(event)
        Keys.onReleased: event => event.accepted = root.activates(event.key)
    }

    Keys.onUpPressed: root.highlight(root.currentIndex < 0 ? root.count - 1 : root.currentIndex - 1, -1)
    Keys.onDownPressed: root.highlight(root.currentIndex + 1, 1)
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End;
        if (event.accepted) {
            root.highlight(event.key === Qt.Key_Home ? 0 : root.count - 1, event.key === Qt.Key_Home ? 1 : -1);
        }
    }

    // A row may be left only after the next one has been entered.
    function follow(index, hovered) {
        if (hovered || root.currentIndex === index) {
            root.currentIndex = hovered ? index : -1;
        }
    }

    function begin(index) {
        root.currentIndex = index;
        root.positionViewAtIndex(index, ListView.Center);
    }

    // The entry there, or the next in that direction that can be chosen.
    function highlight(index, direction) {
        const before = root.currentIndex;
        root.currentIndex = index;
        while (root.currentItem && !root.currentItem.enabled) {
            root.currentIndex += direction;
        }
        root.currentIndex = root.currentItem ? root.currentIndex : before;
        edges.revealRow(root.currentIndex);
    }

    function activates(key) {
        return key === Qt.Key_Space || key === Qt.Key_Return || key === Qt.Key_Enter;
    }

    // The key that opened the menu may still be held down.
    function activateByKey(event) {
        event.accepted = root.activates(event.key);
        if (event.accepted && !event.isAutoRepeat) {
            root.activated(root.currentIndex);
        }
    }

    ScrollEdges {
        id: edges

        flickable: root
        surface: Brand.popup
        thumbMargin: -6 // Beside the list the menu ends.
    }
}
