import QtQuick

import Quib.Brand
import Quib.Controls
import Quib.Core
import Quib.Symbols
import Quib.Texts

/*!
    An open task, with the circle that ticks it off.
*/
FocusScope {
    id: root

    required property uuid taskID
    required property string title
    required property bool isStop

    signal toggled

    implicitHeight: 18
    Accessible.role: Accessible.ListItem
    Accessible.name: TextLine.beginning(root.title)

    PlainButton {
        id: tick

        objectName: "tick"
        anchors.verticalCenter: parent.verticalCenter
        focus: true
        focusPolicy: root.isStop || root.activeFocus ? Qt.TabFocus : Qt.NoFocus
        role: Accessible.CheckBox
        isCheckable: true
        Accessible.name: "Mark done: %1".arg(TextLine.beginning(root.title))

        onClicked: root.toggled()
        onDoubleClicked: {} // Its second press may be on the task that comes next.

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
