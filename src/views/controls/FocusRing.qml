import QtQuick

import Quib.Brand
import Quib.Controls
import Quib.Shapes

/*!
    Shows around a control that the keyboard has come to, until the pointer is used.
*/
ContinuousRectangle {
    anchors.fill: parent
    anchors.margins: -2
    radius: height / 2
    strokeColor: Brand.glow
    strokeWidth: 1.5
    opacity: LastInput.isPointer ? 0 : 1
}
