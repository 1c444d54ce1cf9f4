import QtQuick
import QtQuick.Templates as T

import Quib.Brand
import Quib.Controls
import Quib.Shapes

/*!
    A few words about a control, below it where there is room.
*/
T.ToolTip {
    id: root

    x: (parent.width - width) / 2
    y: parent.height + 5
    implicitWidth: Math.min(300, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    horizontalPadding: 8
    verticalPadding: 4
    topMargin: PopupRoom.top
    leftMargin: PopupRoom.left
    rightMargin: PopupRoom.right
    bottomMargin: PopupRoom.bottom
    delay: 600

    background: ContinuousRectangle {
        objectName: "popup"
        radius: 6
        color: Brand.popup
        strokeColor: Brand.white(0.12)
    }

    contentItem: QuibText {
        text: root.text
        size: 11
        elide: Text.ElideRight
        Accessible.role: Accessible.ToolTip
    }
}
