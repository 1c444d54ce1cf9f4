import QtQuick

import Quib.Controls
import Quib.Core
import Quib.Notch

/*!
    What the user is at: the running timer, or the way to start one, and the next open tasks.
*/
FocusScope {
    id: root

    required property Store store
    required property NotchModel model

    Card {
        anchors.fill: parent

        Item {
            id: inside

            // Under a tall bar the gaps give way first.
            readonly property int gap: Math.max(4, Math.min(10, Math.floor((height - heading.height - timer.height - 54) / 4)))

            anchors.fill: parent

            SectionLabel {
                id: heading

                objectName: "heading"
                text: "Focus"
            }

            FocusTimer {
                id: timer

                objectName: "timer"
                anchors.top: heading.bottom
                anchors.topMargin: inside.gap
                width: parent.width
                focus: true
                store: root.store
                model: root.model
            }

            FocusTasks {
                objectName: "tasks"
                anchors.top: timer.bottom
                anchors.topMargin: inside.gap
                anchors.bottom: parent.bottom
                width: parent.width
                store: root.store

                onEmptied: timer.takeKeyboard()
            }
        }
    }
}
