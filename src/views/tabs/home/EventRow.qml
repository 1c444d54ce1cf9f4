import QtQuick

import Quib.Brand
import Quib.Controls
import Quib.Shapes
import Quib.Texts

/*!
    One event of the day: what, when, and how far off.
*/
Item {
    id: root

    required property string title
    required property date start
    required property bool allDay
    required property color eventColor
    required property date now

    readonly property string time: root.allDay ? "All day" : Format.timeOfDay(root.start, root.now)

    implicitHeight: 32
    Accessible.role: Accessible.ListItem
    Accessible.name: "%2, %1".arg(root.time).arg(root.title) // The title last: it may hold anything.

    ContinuousRectangle {
        id: bar

        objectName: "bar"
        anchors.verticalCenter: parent.verticalCenter
        width: 3
        height: 26
        radius: 2
        color: root.eventColor
    }

    Column {
        anchors.left: bar.right
        anchors.leftMargin: 8
        anchors.right: distance.visible ? distance.left : parent.right
        anchors.rightMargin: distance.visible ? 8 : 0
        anchors.verticalCenter: parent.verticalCenter

        QuibText {
            objectName: "title"
            width: parent.width
            text: root.title
            size: 12
            weight: Font.Medium
            elide: Text.ElideRight
            Accessible.ignored: true
        }

        QuibText {
            objectName: "time"
            width: parent.width
            text: root.time
            size: 10.5
            color: Brand.muted
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }

    Item {
        id: distance

        objectName: "distance"
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: Math.max(70, distanceText.implicitWidth + 16)
        height: distanceText.implicitHeight + 6
        visible: !root.allDay

        ContinuousRectangle {
            objectName: "capsule"
            anchors.fill: parent
            radius: height / 2
            color: Qt.alpha(root.eventColor, 0.15)
        }

        DistanceText {
            id: distanceText

            objectName: "distanceText"
            anchors.centerIn: parent
            text: distance.visible ? Format.timeBetween(root.start, root.now) : ""
        }
    }
}
