pragma ComponentBehavior: Bound

import QtQuick

import Quib.Brand
import Quib.Controls
import Quib.Core
import Quib.Shapes
import Quib.Symbols

/*!
    One client of the list: whose timer runs, and how many tasks are open.
*/
PlainButton {
    id: root

    required property uuid clientID
    required property string name
    required property string status
    required property bool isTimed
    required property int openTasks
    required property string details

    property bool selected: false
    property real lineHeight // Of every row: a line of emoji alone may be lower.

    horizontalPadding: 8
    verticalPadding: 6
    ringRadius: 8
    role: Accessible.ListItem
    Accessible.name: root.name
    Accessible.description: root.details
    Accessible.selectable: true
    Accessible.selected: root.selected

    background: ContinuousRectangle {
        objectName: "surface"
        radius: 8
        color: root.selected ? Brand.purple : "white"
        opacity: root.selected ? 0.35 : root.hovered ? 0.06 : 0
    }

    contentItem: Parts {
        implicitHeight: root.lineHeight
        name: root.name
        status: root.status
        isTimed: root.isTimed
        openTasks: root.openTasks
    }

    component Parts: Item {
        id: parts

        required property string name
        required property string status
        required property bool isTimed
        required property int openTasks

        ContinuousRectangle {
            id: dot

            objectName: "dot"
            anchors.verticalCenter: parent.verticalCenter
            width: 8
            height: 8
            radius: 4
            color: Brand.color(parts.status)
        }

        QuibText {
            id: nameText

            objectName: "name"
            anchors.left: dot.right
            anchors.leftMargin: 8
            anchors.right: marks.left
            anchors.rightMargin: 6
            anchors.verticalCenter: parent.verticalCenter
            text: parts.name
            size: 12
            weight: Font.Medium
            elide: Text.ElideRight
            Accessible.ignored: true
        }

        Row {
            id: marks

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            spacing: 6

            Symbol {
                objectName: "timed"
                anchors.verticalCenter: parent.verticalCenter
                visible: parts.isTimed
                name: "stopwatch.fill"
                size: 10
                color: Brand.live
            }

            Item {
                objectName: "badge"
                anchors.verticalCenter: parent.verticalCenter
                width: count.implicitWidth + 10
                height: count.implicitHeight + 2
                visible: parts.openTasks > 0

                ContinuousRectangle {
                    objectName: "capsule"
                    anchors.fill: parent
                    radius: height / 2
                    color: Brand.white(0.08)
                }

                QuibText {
                    id: count

                    objectName: "openTasks"
                    x: 5
                    y: 1
                    text: parts.openTasks
                    size: 10
                    weight: Font.DemiBold
                    color: Brand.muted
                    Accessible.ignored: true
                }
            }
        }
    }
}
