import QtQuick

import Quib.Brand
import Quib.Controls
import Quib.Models
import Quib.Motion
import Quib.Notch
import Quib.Shapes
import Quib.Texts

/*!
    The running timer beside the collapsed notch: for whom on the left, how long on the right.
*/
Item {
    id: root

    required property NotchModel model
    required property RunningTimer timer
    required property SpringValue spring

    opacity: 1 - Math.min(1, root.spring.value)
    visible: root.timer.isRunning && root.opacity > 0

    Item {
        objectName: "leftWing"
        anchors.left: parent.left
        width: 92
        height: parent.height

        Row {
            id: row

            anchors.left: parent.left
            anchors.leftMargin: 14
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width - 2 * anchors.leftMargin
            spacing: 6

            ContinuousRectangle {
                id: dot

                objectName: "dot"
                anchors.verticalCenter: parent.verticalCenter
                width: 7
                height: 7
                radius: 3.5
                color: Brand.live
                opacity: pulse.level

                Pulse {
                    id: pulse

                    running: !root.model.isExpanded && !root.model.isMotionReduced
                }
            }

            QuibText {
                objectName: "clientName"
                anchors.verticalCenter: parent.verticalCenter
                width: row.width - dot.width - row.spacing
                text: root.timer.clientName
                size: 11
                weight: Font.DemiBold
                color: Brand.white(0.9)
                elide: Text.ElideRight
            }
        }
    }

    Item {
        objectName: "rightWing"
        anchors.right: parent.right
        width: 92
        height: parent.height
        clip: true

        DigitsText {
            objectName: "elapsed"
            anchors.right: parent.right
            anchors.rightMargin: 14
            anchors.verticalCenter: parent.verticalCenter
            text: Format.formatDuration(beat.elapsed, true)
            size: 11.5
            color: Brand.glow

            Beat {
                id: beat

                since: root.timer.since
            }
        }
    }
}
