import QtQuick

import Quib.Brand
import Quib.Shapes

/*!
    One choice of a row of them, as a capsule.
*/
PlainButton {
    id: root

    property string title
    property bool selected: false

    implicitWidth: Math.min(160, implicitContentWidth + leftPadding + rightPadding)
    horizontalPadding: 9
    verticalPadding: 3
    role: Accessible.RadioButton
    isCheckable: true
    isChecked: root.selected
    Accessible.name: root.title

    background: ContinuousRectangle {
        objectName: "capsule"
        radius: height / 2
        color: root.selected ? Brand.purple : "white"
        opacity: root.selected ? 0.6 : 0.06
    }

    contentItem: QuibText {
        objectName: "title"
        text: root.title
        size: 10.5
        weight: Font.Medium
        color: root.selected ? "white" : Brand.muted
        elide: Text.ElideRight
        Accessible.ignored: true
    }
}
