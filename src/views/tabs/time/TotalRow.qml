import QtQuick

import Quib.Brand
import Quib.Controls
import Quib.Shapes
import Quib.Texts

/*!
    The time of one client: how long, how much it earns, and its share as a bar.
*/
Column {
    id: root

    required property string name
    required property color color
    required property double seconds
    required property double fraction
    required property double amount

    spacing: 4
    Accessible.role: Accessible.ListItem
    Accessible.name: root.name
    Accessible.description: "%1, %2".arg(duration.text).arg(amount.text)

    Item {
        width: parent.width
        height: name.height

        QuibText {
            id: name

            objectName: "name"
            anchors.left: parent.left
            anchors.right: duration.left
            anchors.rightMargin: 8
            text: root.name
            size: 11.5
            weight: Font.Medium
            elide: Text.ElideRight
            Accessible.ignored: true
        }

        DigitsText {
            id: duration

            objectName: "duration"
            anchors.right: amount.left
            anchors.rightMargin: 8
            anchors.baseline: name.baseline
            text: Format.formatDuration(root.seconds, false)
        }

        AmountText {
            id: amount

            objectName: "amount"
            anchors.right: parent.right
            anchors.baseline: name.baseline
            width: 72
            text: Format.formatMoney(root.amount)
        }
    }

    ContinuousRectangle {
        objectName: "track"
        width: parent.width
        height: 4
        radius: 2
        color: Brand.white(0.06)

        ContinuousRectangle {
            objectName: "bar"
            width: root.fraction * parent.width
            height: parent.height
            radius: 2
            color: root.color
        }
    }
}
