import QtQuick

import Quib.Controls
import Quib.Texts

/*!
    How far off something is, counting: its digits keep their places. Where that is not read letter by
    letter from the left it is a text like others.
*/
Item {
    id: root

    required property string text

    readonly property bool standsInCells: TextLine.standsInCells(root.text)

    implicitWidth: root.standsInCells ? digits.implicitWidth : whole.implicitWidth
    implicitHeight: whole.implicitHeight

    DigitsText {
        id: digits

        objectName: "digits"
        visible: root.standsInCells
        text: root.standsInCells ? root.text : ""
        size: whole.size
        weight: whole.weight
    }

    QuibText {
        id: whole

        objectName: "whole"
        visible: !root.standsInCells
        text: root.standsInCells ? "" : root.text
        size: 10
        weight: Font.Bold
    }
}
