import QtQuick

import Quib.Controls
import Quib.Motion
import Quib.Texts

/*!
    How long a timer has been running, counting. Drawn smaller where there is too little room: a hand
    may have edited the start.
*/
DigitsText {
    id: root

    property real room: root.width
    property alias since: beat.since

    scale: Math.min(1, root.room / root.width)
    transformOrigin: Item.Left
    text: Format.formatDuration(beat.elapsed, true)
    weight: Font.DemiBold

    Beat {
        id: beat
    }
}
