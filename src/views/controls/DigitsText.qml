pragma ComponentBehavior: Bound

import QtQuick

import Quib.Texts

/*!
    A short text that counts: its digits stand in cells as wide as the widest of them, so that nothing
    moves when one turns, and only that one is laid out anew.
*/
Item {
    id: root

    property string text
    property real size: 11
    property int weight: Font.Normal
    property color color: "white"

    readonly property real digitWidth: TextLine.widestDigit(metrics.font) / 2

    implicitWidth: cells.implicitWidth
    implicitHeight: cells.implicitHeight
    baselineOffset: metrics.ascent / 2
    Accessible.role: Accessible.StaticText
    Accessible.name: root.text

    FontMetrics {
        id: metrics

        font.pixelSize: root.size * 2
        font.weight: root.weight
        font.hintingPreference: Font.PreferNoHinting
    }

    Row {
        id: cells

        Repeater {
            model: root.text.length

            Item {
                id: cell

                required property int index

                readonly property bool isDigit: twice.text >= "0" && twice.text <= "9"

                implicitWidth: cell.isDigit ? root.digitWidth : twice.implicitWidth / 2
                implicitHeight: twice.implicitHeight / 2

                Text {
                    id: twice

                    objectName: "digit"
                    width: cell.width * 2
                    scale: 0.5
                    transformOrigin: Item.TopLeft
                    text: root.text.charAt(cell.index)
                    textFormat: Text.PlainText
                    color: root.color
                    horizontalAlignment: Text.AlignHCenter
                    font: metrics.font
                }
            }
        }
    }
}
