pragma ComponentBehavior: Bound

import QtQuick

import Quib.Controls
import Quib.Core
import Quib.Models
import Quib.Texts

/*!
    One group of shortcuts: its title, and as many columns of buttons as fit. One button is the stop of
    the keyboard, and the arrows lead to the others.
*/
FocusScope {
    id: root

    required property string title
    required property color tint
    required property bool gold
    required property shortcutGroup group
    required property IconSource icons

    readonly property real gap: 6
    readonly property real smallestButton: 136
    readonly property int columns: Math.max(1, Math.floor((width + root.gap) / (root.smallestButton + root.gap)))

    signal opened(url: string)
    signal editClicked

    function step(by) {
        const row = grid.currentIndex + by;
        if (row >= 0 && row < grid.count) {
            grid.currentIndex = row;
            edges.revealRow(row);
            (grid.currentItem as ShortcutCell).focusButton();
        }
    }

    Item {
        id: header

        objectName: "header"
        anchors.left: parent.left
        anchors.right: parent.right
        height: pencil.height

        SectionLabel {
            objectName: "title"
            anchors.left: parent.left
            anchors.right: pencil.left
            anchors.rightMargin: 6
            anchors.verticalCenter: parent.verticalCenter
            text: root.title
            elide: Text.ElideRight
        }

        IconButton {
            id: pencil

            objectName: "edit"
            anchors.right: parent.right
            symbol: "pencil"
            size: 10
            help: "Edit shortcuts (opens shortcuts.json)"
            Accessible.name: "Edit the shortcuts of %1".arg(TextLine.beginning(root.title))
            Accessible.description: help

            onClicked: root.editClicked()
        }
    }

    // Half a gap lies around each button, so that the ring of the keyboard has room at the edges.
    GridView {
        id: grid

        objectName: "buttons"
        anchors.left: parent.left
        anchors.leftMargin: -root.gap / 2
        anchors.top: header.bottom
        anchors.topMargin: 8 - root.gap / 2
        anchors.bottom: parent.bottom
        anchors.bottomMargin: -root.gap / 2
        width: root.width + root.gap + 1 // Or a fraction too little would cost a column.
        cellWidth: (root.width + root.gap) / root.columns
        cellHeight: 36 + root.gap
        clip: true
        focus: true
        boundsBehavior: Flickable.StopAtBounds
        cacheBuffer: 0 // Or what is made beforehand is a stop of the keyboard before it is whole.
        highlightFollowsCurrentItem: false
        interactive: contentHeight > height
        keyNavigationEnabled: false
        Accessible.role: Accessible.List
        Accessible.name: TextLine.beginning(root.title)

        model: ShortcutButtonModel {
            group: root.group
        }

        delegate: ShortcutCell {
            width: grid.cellWidth
            height: grid.cellHeight
            gap: root.gap
            isStop: GridView.isCurrentItem
            tint: root.tint
            gold: root.gold
            icons: root.icons

            onOpened: root.opened(url)
        }

        onActiveFocusChanged: if (activeFocus) edges.revealRow(currentIndex)

        Keys.onLeftPressed: root.step(-1)
        Keys.onRightPressed: root.step(1)
        Keys.onUpPressed: root.step(-root.columns)
        Keys.onDownPressed: root.step(root.columns)
    }

    ScrollEdges {
        id: edges

        flickable: grid
        hasThumb: false
    }
}
