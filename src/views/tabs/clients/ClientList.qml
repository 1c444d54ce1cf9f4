pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

import Quib.Brand
import Quib.Controls
import Quib.Core
import Quib.Models

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
            list.reveal(row);
        }
    }

    function focusRow(reason) {
        list.forceLayout(); // A row that is gone may still be current.
        // As a PlainButton, of which this file makes none, Qt 6.8 would not know it.
        const button = (list.currentItem ?? add) as T.AbstractButton;
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

        FontMetrics {
            id: metrics

            font.pixelSize: 2 * 12 // As QuibText lays it out.
            font.weight: Font.Medium
        }

        RowList {
            id: list

            objectName: "clientList"
            anchors.fill: parent
            anchors.topMargin: add.height + 4
            focus: true
            surface: Brand.cardSurface
            spacing: 2
            Accessible.name: "Clients"

            onStepped: by => root.step(by)

            model: ClientListModel {
                id: clients

                store: root.store
            }

            delegate: ClientRow {
                width: list.width
                lineHeight: Math.ceil(metrics.height) / 2
                focusPolicy: ListView.isCurrentItem || activeFocus ? Qt.TabFocus : Qt.NoFocus
                selected: clientID === root.selection

                onClicked: {
                    root.chosen(clientID);
                    root.focusRow(Qt.MouseFocusReason);
                }
            }
        }
    }
}
