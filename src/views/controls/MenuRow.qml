import QtQuick
import QtQuick.Templates as T

import Quib.Brand
import Quib.Shapes
import Quib.Symbols

/*!
    One entry of a menu, or the line between two groups of them.
*/
T.MenuItem {
    id: root

    required property string title
    required property string symbol
    required property bool isSeparator
    required property bool isHighlighted

    readonly property int role: Accessible.MenuItem
    readonly property bool isCheckable: root.checked
    readonly property bool isChecked: root.checked

    implicitHeight: root.isSeparator ? 9 : 24
    leftPadding: 8
    rightPadding: 8
    enabled: !root.isSeparator
    focusPolicy: Qt.NoFocus
    hoverEnabled: true
    Accessible.ignored: root.isSeparator
    Accessible.name: root.title
    Accessible.checkable: root.isCheckable
    Accessible.checked: root.isChecked

    Accessible.onPressAction: root.clicked()

    background: ContinuousRectangle {
        radius: 6
        color: root.isHighlighted ? Brand.purple : "transparent"
        opacity: 0.6
    }

    contentItem: Item {
        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: root.checked ? "checkmark" : root.symbol
            size: root.checked ? 9 : 11
            weight: root.checked ? Font.Bold : Font.Normal
        }

        QuibText {
            objectName: "title"
            anchors.verticalCenter: parent.verticalCenter
            x: root.symbol === "" ? 15 : 19
            width: parent.width - x
            visible: !root.isSeparator
            text: root.title
            size: 12
            elide: Text.ElideRight
            Accessible.ignored: true
        }

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width
            height: 1
            visible: root.isSeparator
            color: Brand.white(0.12)
        }
    }
}
