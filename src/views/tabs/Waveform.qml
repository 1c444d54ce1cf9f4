import QtQuick

import Quib.Views

/*!
    The waveform, whose bars light up one after another while it moves.
*/
Item {
    id: root

    property real size: 18
    property bool moves: false

    readonly property int bars: 7

    property int lit: root.bars

    implicitWidth: root.size
    implicitHeight: root.size

    onMovesChanged: root.lit = root.bars

    Timer {
        interval: 130
        repeat: true
        running: root.moves && root.visible

        onTriggered: root.lit = (root.lit + 1) % (root.bars + 2) // All of them for a while longer.
    }

    Bars {
        opacity: 0.4
        visible: root.lit < root.bars
    }

    Item {
        objectName: "lit"
        width: root.width * Math.min(1, root.lit / root.bars)
        height: root.height
        clip: true

        Bars {}
    }

    component Bars: Symbol {
        width: root.width
        height: root.height
        name: "waveform"
        size: root.size
        weight: Font.DemiBold
    }
}
