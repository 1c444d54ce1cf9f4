import QtQuick

import Quib.Brand
import Quib.Controls
import Quib.Core
import Quib.Models
import Quib.Motion
import Quib.Notch
import Quib.Shapes
import Quib.Symbols
import Quib.Tabs

/*!
    The timer that runs, or the way to start one.
*/
FocusScope {
    id: root

    required property Store store
    required property NotchModel model

    readonly property bool isRunning: timer.isRunning

    implicitHeight: 44

    onIsRunningChanged: root.handOver()

    // What takes the other's place takes the keyboard from it. Otherwise no button has it by itself
    // while a timer runs: a stray Return would stop it.
    function handOver() {
        if (root.activeFocus) {
            root.takeKeyboard();
        } else {
            start.focus = !root.isRunning;
            stop.focus = false;
        }
    }

    function takeKeyboard() {
        (root.isRunning ? stop : start).forceActiveFocus(Qt.TabFocusReason);
    }

    RunningTimer {
        id: timer

        store: root.store
        placeholder: "No client"
    }

    Item {
        objectName: "running"
        anchors.fill: parent
        visible: timer.isRunning

        ContinuousRectangle {
            id: dot

            objectName: "dot"
            anchors.verticalCenter: client.verticalCenter
            width: 7
            height: 7
            radius: 3.5
            color: Brand.live
            opacity: pulse.level

            Pulse {
                id: pulse

                running: timer.isRunning && !root.model.isMotionReduced
            }
        }

        QuibText {
            id: client

            objectName: "client"
            anchors.left: dot.right
            anchors.leftMargin: 7
            anchors.right: stop.left
            anchors.rightMargin: 6
            text: timer.clientName
            size: 12.5
            weight: Font.DemiBold
            elide: Text.ElideRight
        }

        RunningClock {
            objectName: "elapsed"
            anchors.bottom: parent.bottom
            room: stop.x - 6
            since: timer.since
            size: 20
        }

        IconButton {
            id: stop

            objectName: "stop"
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            symbol: "stop.fill"
            size: 13
            tint: Brand.red
            help: "Stop timer"

            onClicked: root.store.stopTimer()
        }
    }

    PlainButton {
        id: start

        objectName: "start"
        anchors.verticalCenter: parent.verticalCenter
        visible: !timer.isRunning
        focus: true
        horizontalPadding: 8
        verticalPadding: 6
        x: -8
        Accessible.name: "Start tracking time"

        onClicked: root.model.tab = Tab.Time

        background: ContinuousRectangle {
            objectName: "capsule"
            radius: height / 2
            color: start.hovered ? Brand.white(0.08) : "transparent"
        }

        contentItem: Row {
            spacing: 7

            Symbol {
                objectName: "symbol"
                anchors.verticalCenter: parent.verticalCenter
                name: "play.circle.fill"
                size: 18
                color: Brand.glow
            }

            QuibText {
                objectName: "title"
                anchors.verticalCenter: parent.verticalCenter
                text: "Start tracking time"
                size: 12
                weight: Font.Medium
                Accessible.ignored: true
            }
        }
    }
}
