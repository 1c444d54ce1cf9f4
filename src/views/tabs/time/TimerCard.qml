import QtQuick

import Quib.Brand
import Quib.Controls
import Quib.Core
import Quib.Models
import Quib.Tabs

/*!
    Starts a timer for a client, or for nobody, and shows the one that runs, wherever it was started.
*/
FocusScope {
    id: root

    required property Store store

    property uuid client: NoClient.id

    // While a timer runs no button has the focus by itself: a stray Return would stop it.
    Keys.onTabPressed: stop.forceActiveFocus(Qt.TabFocusReason)

    function start() {
        root.store.startTimer(root.client, note.text);
        note.text = "";
    }

    RunningTimer {
        id: timer

        store: root.store
        placeholder: "No client"
    }

    Card {
        id: card

        anchors.fill: parent

        Column {
            width: root.width - 2 * card.padding
            spacing: 9

            SectionLabel {
                objectName: "heading"
                text: "Timer"
            }

            ClientPicker {
                objectName: "timerClient"
                width: parent.width
                visible: !timer.isRunning
                store: root.store
                placeholder: "Choose client"
                selection: root.client

                onChosen: client => root.client = client
            }

            QuibField {
                id: note

                objectName: "note"
                width: parent.width
                visible: !timer.isRunning
                focus: !timer.isRunning
                placeholder: "What are you working on?"

                onAccepted: root.start()
            }

            PillButton {
                objectName: "start"
                visible: !timer.isRunning
                title: "Start"

                onClicked: root.start()
            }

            QuibText {
                objectName: "runningClient"
                width: parent.width
                visible: timer.isRunning
                text: timer.clientName
                size: 13
                weight: Font.DemiBold
                elide: Text.ElideRight
            }

            QuibText {
                objectName: "runningNote"
                width: parent.width
                visible: timer.isRunning && timer.note !== ""
                text: timer.note
                size: 11
                maximumLines: 2
                color: Brand.muted
                elide: Text.ElideRight
            }

            RunningClock {
                objectName: "clock"
                visible: timer.isRunning
                room: parent.width
                since: timer.since
                size: 24
            }

            PillButton {
                id: stop

                objectName: "stop"
                visible: timer.isRunning
                title: "Stop"
                fill: Qt.alpha(Brand.red, 0.7)

                onClicked: root.store.stopTimer()
            }
        }
    }
}
