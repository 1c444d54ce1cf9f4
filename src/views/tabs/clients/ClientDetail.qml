pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts

import Quib.Brand
import Quib.Controls
import Quib.Core
import Quib.Shell
import Quib.Symbols
import Quib.Tabs.Clients

/*!
    The editor of one client: every edit is written at once. Deleting takes two clicks, however far
    apart.
*/
FocusScope {
    id: root

    required property Store store
    required property Actions actions
    required property Commands commands
    required property uuid clientID
    required property bool shown

    property bool confirmDelete: false

    signal deleted

    onShownChanged: root.confirmDelete = false

    function editName() {
        name.forceActiveFocus();
        name.selectAll();
    }

    function confirmOrDelete() {
        if (root.confirmDelete) {
            root.deleted();
        } else {
            root.confirmDelete = true;
        }
    }

    ClientEditor {
        id: editor

        store: root.store
        clientID: root.clientID
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 6

        QuibField {
            id: name

            objectName: "nameField"
            Layout.fillWidth: true
            focus: true
            value: editor.name
            placeholder: "Client name"
            size: 16
            horizontalPadding: 0
            verticalPadding: 0
            surfaceColor: "transparent"

            onEdited: editor.name = text
        }

        StatusPicker {
            objectName: "status"
            status: editor.status
            title: editor.statusTitle
            choices: editor.statusChoices
            row: editor.statusRow

            onChosen: row => editor.chooseStatus(row)
        }

        RowLayout {
            spacing: 6

            Mark {
                objectName: "globe"
                name: "globe"
            }

            QuibField {
                objectName: "siteURL"
                Layout.fillWidth: true
                value: editor.siteURL
                placeholder: "Website URL"
                size: 10.5

                onEdited: editor.siteURL = text
            }

            Mark {
                objectName: "sterlingsign.circle"
                Layout.leftMargin: 6
                name: "sterlingsign.circle"
            }

            QuibField {
                id: rate

                objectName: "rate"
                Layout.preferredWidth: 80
                value: editor.rateText
                settles: true
                placeholder: "Rate"
                size: 10.5

                onEdited: editor.rateText = text
                onAccepted: rate.settle()
            }
        }

        RowLayout {
            spacing: 6

            Mark {
                objectName: "folderMark"
                name: "folder"
            }

            QuibText {
                objectName: "folderPath"
                Layout.fillWidth: true
                Layout.maximumWidth: Math.ceil(implicitWidth)
                text: editor.folderPath === "" ? "No project folder" : editor.folderPath
                size: 11
                color: editor.folderPath === "" ? Brand.muted2 : "white"
                elide: Text.ElideMiddle
            }

            IconButton {
                objectName: "chooseFolder"
                symbol: "ellipsis.circle"
                size: 11
                help: "Choose folder"

                onClicked: editor.chooseFolder(root.commands)
            }
        }

        RowLayout {
            ClientActions {
                objectName: "actions"
                hasSite: editor.siteURL !== ""
                hasFolder: editor.folderPath !== ""
                isTimed: editor.isTimed

                onSiteClicked: root.actions.open(editor.siteURL)
                onFolderClicked: root.actions.reveal(editor.folderPath)
                onCodeClicked: root.actions.openInEditor(editor.folderPath)
                onTrackClicked: editor.startTimer()
                onStopClicked: root.store.stopTimer()
            }

            Item { Layout.fillWidth: true }

            IconButton {
                objectName: "delete"
                symbol: root.confirmDelete ? "trash.fill" : "trash"
                size: 12
                tint: root.confirmDelete ? Brand.red : Brand.muted2
                hoverTint: root.confirmDelete ? Brand.red : "white" // The pointer that armed it is still there.
                help: root.confirmDelete ? "Click again to delete" : "Delete client"

                onClicked: root.confirmOrDelete()
            }
        }

        QuibTextArea {
            id: notes

            objectName: "notes"
            Layout.fillWidth: true
            Layout.fillHeight: true
            value: editor.notes
            placeholder: "Notes — contact, package, next step…"
            size: 11.5

            onEdited: editor.notes = text
        }
    }

    component Mark: Symbol {
        size: 11
        color: Brand.muted2
    }
}
