pragma ComponentBehavior: Bound

import QtQuick

import Quib.Controls
import Quib.Core
import Quib.Models
import Quib.Shell
import Quib.Tabs.Home

/*!
    The quick-launch buttons, and their editing: adding applications and websites, taking away.
*/
FocusScope {
    id: root

    required property Store store
    required property Actions actions
    required property IconSource icons
    required property Commands commands

    property bool editing: false
    property bool adding: false

    onEditingChanged: if (!root.editing) root.stopEditing()

    function startAdding() {
        root.adding = true;
        root.commands.takeKeyboard();
        fields.start(addWebsite.visualFocus ? Qt.TabFocusReason : Qt.OtherFocusReason);
    }

    // Called by keys only, hence the ring of the focus.
    function stopAdding() {
        root.adding = false;
        addWebsite.forceActiveFocus(Qt.TabFocusReason); // Or keys would go nowhere.
    }

    function stopEditing() {
        root.adding = false;
        if (fields.activeFocus || addApplication.activeFocus || addWebsite.activeFocus) {
            edit.forceActiveFocus(); // Or keys would go nowhere.
        }
    }

    function addLink() {
        if (LaunchEditor.addLink(root.store, fields.name, fields.address)) {
            fields.clear();
            root.stopAdding();
        }
    }

    LaunchListModel {
        id: launchItems

        store: root.store
    }

    LaunchList {
        objectName: "launchList"
        anchors.left: parent.left
        anchors.right: tools.left
        anchors.rightMargin: 8
        height: parent.height
        focus: true
        items: launchItems
        icons: root.icons
        editing: root.editing

        onOpened: target => root.actions.open(target)
        onRemoved: itemID => root.store.removeLaunchItem(itemID)
        onEmptied: reason => edit.forceActiveFocus(reason)
    }

    Row {
        id: tools

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: 4

        LaunchLinkFields {
            id: fields

            objectName: "linkFields"
            anchors.verticalCenter: parent.verticalCenter
            visible: root.editing && root.adding

            onAccepted: root.addLink()
            onAbandoned: root.stopAdding()
        }

        IconButton {
            id: addApplication

            objectName: "addApplication"
            anchors.verticalCenter: parent.verticalCenter
            visible: root.editing
            symbol: "app.badge"
            size: 12
            help: "Add an app"

            onClicked: LaunchEditor.addApplication(root.store, root.commands)
        }

        IconButton {
            id: addWebsite

            objectName: "addLink"
            anchors.verticalCenter: parent.verticalCenter
            visible: root.editing
            symbol: "link.badge.plus"
            size: 12
            help: "Add a website"

            onClicked: root.startAdding()
        }

        IconButton {
            id: edit

            objectName: "edit"
            anchors.verticalCenter: parent.verticalCenter
            symbol: root.editing ? "checkmark" : "slider.horizontal.3"
            size: 12
            help: "Edit quick launch"
            Accessible.name: root.editing ? "Done editing quick launch" : help

            onClicked: root.editing = !root.editing
        }
    }
}
