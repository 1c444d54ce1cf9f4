pragma ComponentBehavior: Bound

import QtQuick

import Quib.Controls
import Quib.Core
import Quib.Models
import Quib.Tabs

/*!
    The to-do list: a field that adds a task on Return, filters by client, open tasks above done
    ones.
*/
FocusScope {
    id: root

    required property Store store

    property uuid filter: NoClient.id
    property uuid newClient: NoClient.id

    function addTask() {
        const client = root.newClient === NoClient.id ? root.filter : root.newClient;
        list.reveal(root.store.addTask(field.text, client) ? tasks.newestRow() : -1);
        field.text = "";
        field.forceActiveFocus();
    }

    TaskListModel {
        id: tasks

        store: root.store
        filter: root.filter
    }

    Item {
        id: entryRow

        objectName: "entryRow"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.topMargin: 10
        height: field.height

        QuibField {
            id: field

            objectName: "newTitle"
            anchors.left: parent.left
            anchors.right: picker.left
            anchors.rightMargin: 6
            anchors.verticalCenter: parent.verticalCenter
            focus: true
            placeholder: "Add a task and press Return…"

            onAccepted: root.addTask()
        }

        ClientPicker {
            id: picker

            objectName: "newClient"
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            width: 140
            height: field.height // Half a point would show between the two.
            store: root.store
            placeholder: "No client"
            selection: root.newClient

            onChosen: client => root.newClient = client
        }
    }

    TaskFilters {
        id: filters

        objectName: "filters"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: entryRow.bottom
        anchors.topMargin: 8
        store: root.store
        filter: root.filter
        clearDoneTitle: tasks.clearDoneTitle

        onChosen: client => root.filter = client
    }

    TaskList {
        id: list

        objectName: "list"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: filters.bottom
        anchors.topMargin: 8
        anchors.bottom: parent.bottom
        store: root.store
        tasks: tasks

        onEmptied: reason => field.forceActiveFocus(reason) // Or keys would go nowhere.
    }
}
