import QtQuick

import Quib.Brand
import Quib.Shapes
import Quib.Symbols

/*!
    A symbol in a circle that shows under the pointer. Its help is its tooltip, and its name for those
    who do not see the symbol.
*/
PlainButton {
    id: root

    property string symbol
    property real size: 12
    property color tint: Brand.muted
    property color hoverTint: "white"

    padding: 7
    Accessible.name: root.help
    Accessible.description: ""

    background: ContinuousRectangle {
        objectName: "circle"
        radius: height / 2
        color: root.hovered ? Brand.white(0.12) : "transparent"
    }

    contentItem: Symbol {
        objectName: "symbol"
        name: root.symbol
        size: root.size
        weight: Font.DemiBold
        color: root.hovered ? root.hoverTint : root.tint
    }
}
