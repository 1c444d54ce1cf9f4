pragma ComponentBehavior: Bound

import QtQuick

import Quib.Views

/*!
    Every client, below how many they are and a button that adds one. The selected row is the stop of
    the keyboard, and arrows, pages and ends select.
*/
Card {
    id: root

    required property Store store
    required property uuid selection

    signal chosen(client: uuid)
    signal addClicked

    padding: 8

    onSelectionChanged: root.follow()

    function follow() {
        const row = clients.rowOf(root.selection);
        if (row >= 0) {
            list.currentIndex = row;
            list.positionViewAtIndex(row, ListView.Contain);
        }
    }

    function focusRow(reason) {
        list.forceLayout(); // A row that is gone may still be current.
        const button = (list.currentItem ?? add) as PlainButton;
        button.forceActiveFocus(reason);
        button.focusReason = reason; // The list may have given it the focus without.
    }

    function step(by) {
        const client = clients.clientAt(clients.rowBeside(clients.rowOf(root.selection), by));
        if (client !== NoClient.id) {
            root.chosen(client);
            root.focusRow(Qt.TabFocusReason);
        }
    }

    function stepByKey(event) {
        event.accepted = true;
        switch (event.key) {
        case Qt.Key_Up: return root.step(-1);
        case Qt.Key_Down: return root.step(1);
        case Qt.Key_PageUp: return root.step(-root.rowsInSight());
        case Qt.Key_PageDown: return root.step(root.rowsInSight());
        case Qt.Key_Home: return root.step(-clients.count);
        case Qt.Key_End: return root.step(clients.count);
        }
        event.accepted = false;
    }

    function rowsInSight() {
        const height = list.currentItem ? list.currentItem.height + list.spacing : list.height;
        return Math.max(1, Math.floor(list.height / height));
    }

    FocusScope {
        id: inside

        anchors.fill: parent
        focus: true

        SectionLabel {
            objectName: "heading"
            anchors.left: parent.left
            anchors.leftMargin: 6
            anchors.verticalCenter: add.verticalCenter
            text: clients.heading
        }

        IconButton {
            id: add

            objectName: "addClient"
            anchors.right: parent.right
            symbol: "plus"
            size: 12
            help: "Add client"

            onClicked: root.addClicked()
        }

        ListView {
            id: list

            objectName: "clientList"
            anchors.fill: parent
            anchors.topMargin: add.height + 4
            focus: true
            boundsBehavior: Flickable.StopAtBounds
            cacheBuffer: 0 // Or what is made beforehand is a stop of the keyboard before it is whole.
            clip: true
            highlightFollowsCurrentItem: false
            keyNavigationEnabled: false
            spacing: 2
            Accessible.role: Accessible.List
            Accessible.name: "Clients"

            model: ClientListModel {
                id: clients

                store: root.store
            }

            delegate: ClientRow {
                width: list.width
                focusPolicy: ListView.isCurrentItem || activeFocus ? Qt.TabFocus : Qt.NoFocus
                selected: clientID === root.selection

                onClicked: {
                    root.chosen(clientID);
                    root.focusRow(Qt.MouseFocusReason);
                }
            }

            Keys.onPressed: event => root.stepByKey(event)

            ScrollThumb {
                flickable: list
            }
        }
    }
}
