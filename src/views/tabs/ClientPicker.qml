pragma ComponentBehavior: Bound

import QtQuick

import Quib.Brand
import Quib.Controls
import Quib.Core
import Quib.Models
import Quib.Shapes
import Quib.Symbols
import Quib.Tabs

/*!
    Chooses a client, or none, from a menu.
*/
PlainButton {
    id: root

    required property Store store
    required property uuid selection
    required property string placeholder

    readonly property string shownName: client.exists ? client.name : root.placeholder

    signal chosen(client: uuid)

    horizontalPadding: 9
    verticalPadding: 6
    ringRadius: 8
    role: Accessible.ComboBox
    Accessible.name: "Client: %1".arg(root.shownName)

    onClicked: menu.open()
    Keys.onDownPressed: menu.open()

    ChosenClient {
        id: client

        store: root.store
        clientID: root.selection
    }

    ClientChoiceModel {
        id: choices

        store: root.store
        shown: root.visible
        placeholder: root.placeholder
        selection: root.selection
    }

    QuibMenu {
        id: menu

        model: choices
        startIndex: choices.selectedRow

        onActivated: index => root.chosen(choices.clientAt(index))
    }

    background: ContinuousRectangle {
        objectName: "background"
        radius: 8
        color: Brand.white(0.07)
    }

    contentItem: Label {
        name: root.shownName
        status: client.status
    }

    component Label: Item {
        id: label

        required property string name
        required property string status

        implicitWidth: dot.width + name.implicitWidth + arrows.width + 12
        implicitHeight: name.implicitHeight

        ContinuousRectangle {
            id: dot

            objectName: "dot"
            anchors.verticalCenter: parent.verticalCenter
            width: 6
            height: 6
            radius: 3
            color: Brand.color(label.status)
        }

        QuibText {
            id: name

            objectName: "name"
            anchors.left: dot.right
            anchors.leftMargin: 6
            anchors.right: arrows.left
            anchors.rightMargin: 6
            anchors.verticalCenter: parent.verticalCenter
            text: label.name
            size: 11.5
            elide: Text.ElideRight
            Accessible.ignored: true
        }

        Symbol {
            id: arrows

            objectName: "arrows"
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            name: "chevron.up.chevron.down"
            size: 8
        }
    }
}
