import QtQuick

import Quib.Controls

/*!
    Where a website is typed in: its name, which may be left out, and its address.
*/
FocusScope {
    id: root

    property alias name: nameField.text
    property alias address: addressField.text

    signal accepted
    signal abandoned

    implicitWidth: 110 + 6 + 210
    implicitHeight: nameField.implicitHeight

    Keys.onEscapePressed: root.abandoned()

    function start(reason) {
        nameField.forceActiveFocus(reason);
    }

    function clear() {
        root.name = "";
        root.address = "";
    }

    QuibField {
        id: nameField

        objectName: "newName"
        width: 110
        focus: true
        placeholder: "Name"

        onAccepted: root.accepted()
    }

    QuibField {
        id: addressField

        objectName: "newURL"
        anchors.right: parent.right
        width: 210
        placeholder: "Website, e.g. myshop.com/admin"

        onAccepted: root.accepted()
    }
}
