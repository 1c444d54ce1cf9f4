import QtQuick

import Quib.Brand
import Quib.Shapes

/*!
    Shows how far a list has been scrolled, while it is and while the pointer is over it. Stands in the
    list, in front of its rows, unless it is given a place beside it.
*/
ContinuousRectangle {
    id: root

    required property Flickable flickable

    readonly property real heightRatio: root.flickable.visibleArea.heightRatio
    readonly property real wayDown: root.flickable.visibleArea.yPosition / Math.max(0.001, 1 - root.heightRatio)

    parent: root.flickable
    x: parent.width - width - 2
    y: root.wayDown * (parent.height - height)
    width: 4
    height: Math.max(16, root.heightRatio * parent.height)
    visible: root.heightRatio < 1 && opacity > 0
    opacity: root.flickable.moving || hover.hovered ? 1 : 0
    radius: 2
    color: Brand.white(0.35)

    Behavior on opacity {
        NumberAnimation {
            duration: 250
        }
    }

    HoverHandler {
        id: hover

        parent: root.flickable
    }
}
