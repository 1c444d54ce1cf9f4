import QtQuick

import Quib.Brand
import Quib.Controls
import Quib.Texts

/*!
    An amount of money at the right end of a frame. One too wide for it shrinks, and is elided in the
    end. One that is not read letter by letter from the left is a text like others.
*/
Item {
    id: root

    required property string text

    readonly property bool isShort: TextLine.standsInCells(root.text) && root.text.length < 16
                                    && digits.implicitWidth <= root.width

    implicitHeight: digits.implicitHeight
    baselineOffset: digits.baselineOffset

    DigitsText {
        id: digits

        objectName: "digits"
        anchors.right: parent.right
        visible: root.isShort
        text: root.text.slice(0, 16)
        color: Brand.muted
    }

    QuibText {
        objectName: "shrunk"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.baseline: parent.baseline
        visible: !root.isShort
        text: root.text
        minimumScale: 0.6
        horizontalAlignment: Text.AlignRight
        color: Brand.muted
        elide: Text.ElideRight
    }
}
