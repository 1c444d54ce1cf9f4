import QtQuick

import Quib.Brand
import Quib.Shapes

/*!
    A surface for one content, which keeps its own size in the top left corner unless it asks for
    more. As wide as what holds it, unless that says otherwise.
*/
Item {
    id: root

    property real padding: 12
    default property Item content

    implicitWidth: (root.content?.implicitWidth ?? 0) + 2 * root.padding
    implicitHeight: (root.content?.implicitHeight ?? 0) + 2 * root.padding
    width: root.parent?.width ?? root.implicitWidth

    onContentChanged: root.content.parent = inside

    ContinuousRectangle {
        objectName: "surface"
        anchors.fill: parent
        radius: 14
        color: Brand.card
        strokeColor: Brand.cardStroke
    }

    Item {
        id: inside

        objectName: "inside"
        anchors.fill: parent
        anchors.margins: root.padding
    }
}
