import QtQuick

import Quib.Brand
import Quib.Controls
import Quib.Core
import Quib.Tabs.Notes

/*!
    One free-form text. Its letters keep 5 points off the editor's edge and that 8 off the surface's,
    which is where the placeholder is.
*/
FocusScope {
    id: root

    required property Store store

    Notebook {
        id: notebook

        store: root.store
    }

    Item {
        id: header

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.topMargin: 6
        height: stamp.height

        SectionLabel {
            objectName: "heading"
            anchors.verticalCenter: parent.verticalCenter
            text: "Quick notes"
        }

        IconButton {
            objectName: "copyAll"
            anchors.right: stamp.left
            anchors.rightMargin: 4
            symbol: "doc.on.doc"
            help: "Copy all"

            onClicked: notebook.copyAll()
        }

        IconButton {
            id: stamp

            objectName: "insertTimestamp"
            anchors.right: parent.right
            symbol: "clock.badge"
            help: "Insert timestamp"

            onClicked: notes.append(notebook.timestamp())
        }
    }

    QuibTextArea {
        id: notes

        objectName: "notes"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: header.bottom
        anchors.topMargin: 6
        anchors.bottom: parent.bottom
        focus: true
        value: root.store.notes
        placeholder: "Call notes, ideas, client requests…"
        size: 12.5
        horizontalPadding: 13
        verticalPadding: 13
        radius: 12
        surfaceColor: Brand.white(0.05)

        onEdited: root.store.notes = text
    }
}
