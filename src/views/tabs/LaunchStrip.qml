pragma ComponentBehavior: Bound

import QtQuick

import Quib.Notch
import Quib.Views

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

    // Only keys do.
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
        if (items.addLink(fields.name, fields.address)) {
            fields.clear();
            root.stopAdding();
            list.positionViewAtEnd();
        }
    }

    LaunchListModel {
        id: items

        store: root.store
    }

    ListView {
        id: list

        objectName: "items"
        anchors.left: parent.left
        anchors.right: tools.left
        anchors.rightMargin: 8
        height: parent.height
        focus: true
        orientation: ListView.Horizontal
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        keyNavigationEnabled: false
        spacing: 8
        model: items
        Accessible.role: Accessible.List
        Accessible.name: "Quick launch"

        SidewaysWheel {
            flickable: list
        }

        // The badges stand out of the buttons.
        delegate: LaunchButton {
            id: button

            required property int index

            objectName: "item"
            y: (list.height - height) / 2
            icons: root.icons
            editing: root.editing

            onActiveFocusChanged: if (activeFocus) list.positionViewAtIndex(index, ListView.Contain)
            onOpened: root.actions.open(target)
            onRemoved: {
                if (activeFocus) {
                    edit.forceActiveFocus(); // Or keys would go nowhere.
                }
                root.store.removeLaunchItem(itemID);
            }
        }
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

            onClicked: items.addApplication(root.commands)
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

            onClicked: root.editing = !root.editing
        }
    }
}
