import QtQuick

import Quib.Brand
import Quib.Controls
import Quib.Core
import Quib.Files
import Quib.Shapes
import Quib.Symbols
import Quib.Texts

/*!
    One shortcut: the picture and the name of what it opens.
*/
PlainButton {
    id: root

    required property string name
    required property string symbol
    required property string application
    required property string url
    required property color tint
    required property bool gold
    required property IconSource icons

    readonly property color ink: root.gold ? root.tint : "white"

    implicitHeight: 36
    horizontalPadding: 10
    ringRadius: 12
    help: root.url
    Accessible.name: "Open %1".arg(TextLine.beginning(root.name))
    Accessible.description: TextLine.beginning(root.url)

    background: ContinuousRectangle {
        objectName: "surface"
        radius: 10
        color: root.gold ? Qt.alpha(root.tint, root.hovered ? 0.26 : 0.14)
                         : Brand.white(root.hovered ? 0.12 : 0.06)
        strokeColor: root.gold ? Qt.alpha(root.tint, root.hovered ? 0.7 : 0.4) : "transparent"
    }

    contentItem: Item {
        Item {
            objectName: "icon"
            anchors.verticalCenter: parent.verticalCenter
            width: 20
            height: 20

            Symbol {
                objectName: "symbol"
                anchors.centerIn: parent
                visible: root.symbol !== ""
                name: root.symbol
                size: 13
                weight: Font.DemiBold
                color: root.ink
            }

            FileIcon {
                objectName: "application"
                anchors.fill: parent
                source: root.icons
                path: root.application
            }
        }

        QuibText {
            objectName: "name"
            anchors.left: parent.left
            anchors.leftMargin: 28
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: root.name
            size: 12
            weight: Font.DemiBold
            minimumScale: 0.8
            color: root.ink
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
}
