pragma ComponentBehavior: Bound

import QtQuick

import Quib.Brand
import Quib.Controls
import Quib.Models

/*!
    The rows of the totals.
*/
Item {
    id: root

    required property TotalListModel totals

    ReadingList {
        id: list

        objectName: "list"
        anchors.fill: parent
        surface: Brand.cardSurface
        spacing: 8
        model: root.totals
        Accessible.name: "Time per client"

        delegate: TotalRow {
            required property string status

            width: list.width
            color: Brand.color(status)
        }

        QuibText {
            objectName: "nothing"
            visible: list.count === 0
            text: "No time logged yet."
            size: 11.5
            color: Brand.muted2
        }
    }
}
