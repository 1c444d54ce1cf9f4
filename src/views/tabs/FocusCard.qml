pragma ComponentBehavior: Bound

import QtQuick

import Quib.Brand
import Quib.Notch
import Quib.Views

/*!
    What the user is at: the running timer, or the way to start one, and the next open tasks.
*/
Card {
    id: root

    required property Store store
    required property NotchModel model

    FocusScope {
        anchors.fill: parent
        focus: true

        RunningTimer {
            id: timer

            store: root.store
            placeholder: "No client"
        }

        OpenTaskListModel {
            id: tasks

            store: root.store
        }

        SectionLabel {
            id: heading

            objectName: "heading"
            text: "Focus"
        }

        Item {
            id: clock

            objectName: "running"
            anchors.top: heading.bottom
            anchors.topMargin: 10
            width: parent.width
            height: 44
            visible: timer.isRunning

            Rectangle {
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

            Item {
                anchors.left: parent.left
                anchors.right: stop.left
                anchors.rightMargin: 6
                anchors.bottom: parent.bottom
                height: elapsed.implicitHeight

                DigitsText {
                    id: elapsed

                    objectName: "elapsed"
                    scale: Math.min(1, parent.width / width) // For a hand-edited start.
                    transformOrigin: Item.Left
                    text: Format.formatDuration(beat.elapsed, true)
                    size: 20
                    weight: Font.DemiBold

                    Beat {
                        id: beat

                        since: timer.since
                    }
                }
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
            anchors.verticalCenter: clock.verticalCenter
            visible: !timer.isRunning
            focus: !timer.isRunning
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

        Column {
            objectName: "tasks"
            anchors.top: clock.bottom
            anchors.topMargin: 12
            width: parent.width
            spacing: 4
            Accessible.role: Accessible.List
            Accessible.name: "Open tasks"

            Repeater {
                id: rows

                model: tasks

                delegate: FocusTask {
                    objectName: "task"
                    width: parent?.width ?? 0

                    onToggled: {
                        if (activeFocus) {
                            start.forceActiveFocus(); // Or keys would go nowhere.
                        }
                        root.store.toggleTask(taskID);
                    }
                }
            }

            QuibText {
                objectName: "nothing"
                visible: tasks.count === 0
                text: "No open tasks"
                size: 11.5
                color: Brand.muted2
            }
        }
    }
}
