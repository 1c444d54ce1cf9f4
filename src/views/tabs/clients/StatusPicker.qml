import QtQuick

import Quib.Brand
import Quib.Controls
import Quib.Shapes

/*!
    A status as a capsule in its colour, which opens the menu of all of them.
*/
PlainButton {
    id: root

    required property string status
    required property string title
    required property var choices
    required property int row

    signal chosen(row: int)

    horizontalPadding: 8
    verticalPadding: 3
    role: Accessible.ComboBox
    Accessible.name: "Status: %1".arg(root.title)

    onClicked: menu.open()
    Keys.onDownPressed: menu.open()

    QuibMenu {
        id: menu

        model: root.choices
        startIndex: root.row

        onActivated: index => root.chosen(index)
    }

    background: ContinuousRectangle {
        objectName: "capsule"
        radius: height / 2
        color: Brand.color(root.status)
        opacity: 0.15
    }

    contentItem: QuibText {
        objectName: "title"
        text: root.title
        size: 10.5
        color: Brand.letterColor(root.status)
        Accessible.ignored: true
    }
}
