import QtQuick

import Quib.Views
import Quib.Brand

/*!
    An open task, with the circle that ticks it off.
*/
FocusScope {
    id: root

    required property uuid taskID
    required property string title

    signal toggled

    implicitHeight: 22
    Accessible.role: Accessible.ListItem
    Accessible.name: root.title

    PlainButton {
        id: tick

        objectName: "tick"
        anchors.verticalCenter: parent.verticalCenter
        focus: true
        Accessible.role: Accessible.CheckBox
        Accessible.name: "Mark done: " + root.title
        Accessible.checkable: true

        onClicked: root.toggled()

        contentItem: Symbol {
            objectName: "symbol"
            name: "circle"
            size: 13
            color: tick.hovered ? "white" : Brand.muted
        }
    }

    QuibText {
        objectName: "title"
        anchors.left: tick.right
        anchors.leftMargin: 7
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: root.title
        size: 11.5
        elide: Text.ElideRight
        Accessible.ignored: true
    }
}
