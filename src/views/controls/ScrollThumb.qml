import QtQuick

import Quib.Brand
import Quib.Views

/*!
    Shows how far a list has been scrolled while it is. Stands in the list, in front of its rows.
*/
ContinuousRectangle {
    id: root

    required property Flickable flickable

    parent: root.flickable
    x: parent.width - width - 2
    y: root.flickable.visibleArea.yPosition * parent.height
    width: 4
    height: Math.max(16, root.flickable.visibleArea.heightRatio * parent.height)
    visible: root.flickable.visibleArea.heightRatio < 1 && opacity > 0
    opacity: root.flickable.moving ? 1 : 0
    radius: 2
    color: Brand.white(0.35)

    Behavior on opacity {
        NumberAnimation {
            duration: 250
        }
    }
}
