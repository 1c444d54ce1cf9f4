import QtQuick

import Quib.Brand
import Quib.Controls
import Quib.Shapes
import Quib.Symbols

/*!
    What an empty shelf shows: where files go.
*/
ContinuousRectangle {
    id: root

    radius: 16
    strokeColor: Brand.white(0.15)
    strokeWidth: 1.5
    dashes: [6, 5]

    Column {
        anchors.centerIn: parent
        spacing: 6

        Symbol {
            objectName: "symbol"
            anchors.horizontalCenter: parent.horizontalCenter
            name: "tray.and.arrow.down"
            size: 26
            color: Brand.muted2
        }

        QuibText {
            objectName: "invitation"
            anchors.horizontalCenter: parent.horizontalCenter
            text: "Drop logos, mockups, invoices… here to keep them handy"
            size: 12
            color: Brand.muted
        }

        QuibText {
            objectName: "hint"
            anchors.horizontalCenter: parent.horizontalCenter
            text: "Drag them back out into Mail, WhatsApp or Finder whenever you need them"
            size: 10.5
            color: Brand.muted2
        }
    }
}
