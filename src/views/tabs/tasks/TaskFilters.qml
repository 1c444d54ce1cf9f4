pragma ComponentBehavior: Bound

import QtQuick

import Quib.Brand
import Quib.Controls
import Quib.Core
import Quib.Models

/*!
    The row of chips above the tasks: all of them, those of one client, and a button that clears the
    done ones. The chosen chip is the stop of the keyboard, and arrows and ends choose.
*/
Item {
    id: root

    required property Store store
    required property uuid filter
    required property string clearDoneTitle

    readonly property int row: clients.count > 0 ? clients.rowOf(root.filter) : -1 // Of the chosen chip.

    signal chosen(client: uuid)

    implicitHeight: allChip.implicitHeight

    Keys.onPressed: event => root.stepByKey(event)

    // All of them stand before the first row.
    function choose(row) {
        root.chosen(clients.clientAt(row));
        root.focusChip(row);
    }

    function focusChip(row) {
        edges.revealRow(row);
        const chip = (chips.itemAtIndex(row) ?? allChip) as FilterChip;
        chip.forceActiveFocus(Qt.TabFocusReason);
        chip.focusReason = Qt.TabFocusReason; // The list may have given it the focus without.
    }

    function stepByKey(event) {
        const before = root.row > 0 ? clients.rowBeside(root.row, -1) : -1;
        event.accepted = true;
        switch (event.key) {
        case Qt.Key_Left: return root.choose(before === root.row ? -1 : before);
        case Qt.Key_Right: return root.choose(clients.rowBeside(root.row, 1));
        case Qt.Key_Home: return root.choose(-1);
        case Qt.Key_End: return root.choose(clients.rowBeside(root.row, clients.count));
        }
        event.accepted = false;
    }

    FilterChip {
        id: allChip

        objectName: "allChip"
        title: "All"
        selected: root.filter === NoClient.id
        focusPolicy: root.row < 0 || activeFocus ? Qt.TabFocus : Qt.NoFocus

        onClicked: root.chosen(NoClient.id)
    }

    ListView {
        id: chips

        objectName: "chips"
        anchors.left: allChip.right
        anchors.leftMargin: 4
        anchors.right: clearDone.visible ? clearDone.left : parent.right
        anchors.rightMargin: clearDone.visible ? 8 : 0
        height: parent.height
        orientation: ListView.Horizontal
        spacing: 4
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        cacheBuffer: 0 // Or what is made beforehand is a stop of the keyboard before it is whole.
        currentIndex: root.row
        highlightFollowsCurrentItem: false
        keyNavigationEnabled: false

        model: ClientListModel {
            id: clients

            store: root.store
            selection: ClientListModel.WithTasks
        }

        delegate: FilterChip {
            required property int index
            required property uuid clientID
            required property string name

            title: name
            selected: root.filter === clientID
            focusPolicy: selected || activeFocus ? Qt.TabFocus : Qt.NoFocus

            onClicked: root.chosen(clientID)
            onActiveFocusChanged: if (activeFocus) edges.revealRow(index)
        }

        SidewaysWheel {
            flickable: chips
        }
    }

    ScrollEdges {
        id: edges

        flickable: chips
    }

    PlainButton {
        id: clearDone

        objectName: "clearDone"
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        visible: root.clearDoneTitle !== ""
        Accessible.name: root.clearDoneTitle

        onClicked: root.store.clearDoneTasks()
        onVisibleChanged: if (!visible && activeFocus) root.focusChip(root.row)

        contentItem: QuibText {
            text: root.clearDoneTitle
            size: 10.5
            color: Brand.muted2
            Accessible.ignored: true
        }
    }
}
