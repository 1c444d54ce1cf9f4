import QtQuick

import Quib.Brand
import Quib.Shapes
import Quib.Symbols

/*!
    A capsule with a title and, if it has one, a symbol. Lights up under the pointer. A double click
    is one click, so that what the first one starts is not stopped by the second.
*/
PlainButton {
    id: root

    property string title
    property string symbol
    property color fill: Brand.purple

    horizontalPadding: 10
    verticalPadding: 5
    Accessible.name: root.title

    onDoubleClicked: {} // Taken, it clicks no second time.

    background: ContinuousRectangle {
        objectName: "capsule"
        radius: height / 2
        color: root.fill
        opacity: root.hovered ? 1.0 : 0.85
    }

    contentItem: Row {
        spacing: 5

        Symbol {
            objectName: "symbol"
            anchors.verticalCenter: parent.verticalCenter
            visible: root.symbol !== ""
            name: root.symbol
            size: 10
            weight: Font.Bold
        }

        QuibText {
            objectName: "title"
            anchors.verticalCenter: parent.verticalCenter
            text: root.title
            size: 11
            weight: Font.DemiBold
            Accessible.ignored: true
        }
    }
}
