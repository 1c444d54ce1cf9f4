import QtQuick

import Quib.Core

/*!
    The time tracker: a card that starts and stops the timer, and one with the time of the week or
    the month per client.
*/
FocusScope {
    id: root

    required property Store store
    required property Actions actions

    TimerCard {
        id: timerCard

        objectName: "timerCard"
        anchors.top: parent.top
        anchors.topMargin: 10
        anchors.bottom: parent.bottom
        width: 240
        focus: true
        store: root.store
    }

    TotalsCard {
        objectName: "totalsCard"
        anchors.left: timerCard.right
        anchors.leftMargin: 10
        anchors.right: parent.right
        anchors.top: timerCard.top
        anchors.bottom: parent.bottom
        store: root.store
        actions: root.actions
    }
}
