pragma ComponentBehavior: Bound

import QtQuick

import Quib.Brand
import Quib.Controls
import Quib.Core
import Quib.Shell
import Quib.Tabs

/*!
    The client book: every client in a list, and the editor of the selected one.
*/
FocusScope {
    id: root

    required property Store store
    required property Actions actions
    required property Commands commands
    required property LazyView page

    property uuid selection: NoClient.id

    readonly property uuid shownClient: chosen.exists ? chosen.clientID : NoClient.id

    function addClient() {
        root.selection = root.store.addClient();
        root.commands.takeKeyboard();
        (editors.itemAt(0) as ClientDetail).editName();
    }

    function deleteClient() {
        root.store.deleteClient(root.selection);
        root.selection = NoClient.id;
        list.focusRow(Qt.OtherFocusReason); // Or keys would go nowhere.
    }

    ChosenClient {
        id: chosen

        store: root.store
        clientID: root.selection
    }

    ClientList {
        id: list

        objectName: "clients"
        anchors.left: parent.left
        anchors.top: parent.top
        anchors.topMargin: 10
        anchors.bottom: parent.bottom
        width: 220
        store: root.store
        selection: root.selection

        onChosen: client => root.selection = client
        onAddClicked: root.addClient()
    }

    Item {
        id: detailColumn

        objectName: "detailColumn"
        anchors.left: list.right
        anchors.leftMargin: 14
        anchors.right: parent.right
        anchors.top: list.top
        anchors.bottom: parent.bottom

        // One editor, and another for another client.
        Repeater {
            id: editors

            model: root.shownClient === NoClient.id ? [] : [root.shownClient]

            delegate: ClientDetail {
                required property uuid modelData

                objectName: "clientDetail"
                anchors.fill: parent
                store: root.store
                actions: root.actions
                commands: root.commands
                clientID: modelData
                shown: root.page.shown

                onDeleted: root.deleteClient()
            }
        }

        QuibText {
            objectName: "noClient"
            anchors.centerIn: parent
            visible: root.shownClient === NoClient.id
            text: "Add your first client with +"
            color: Brand.muted
        }
    }
}
