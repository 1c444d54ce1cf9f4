import QtQuick

import Quib.Symbols

/*!
    The waveform, whose bars light up one after another while it moves.
*/
Symbol {
    id: root

    property bool moves: false

    readonly property int bars: 7

    property int lit: root.bars

    name: "waveform"
    size: 18
    weight: Font.DemiBold
    value: Math.min(1, root.lit / root.bars)

    onMovesChanged: root.lit = root.bars

    Timer {
        objectName: "steps"
        interval: 130
        repeat: true
        running: root.moves && root.visible

        onTriggered: root.lit = (root.lit + 1) % (root.bars + 2) // All of them for a while longer.
    }
}
