pragma ComponentBehavior: Bound

import QtQuick

import Quib.Brand
import Quib.Controls
import Quib.Core
import Quib.Models
import Quib.Motion
import Quib.Symbols

/*!
    What is left of the day in the user's calendars, or the way to let us read them.
*/
FocusScope {
    id: root

    required property CalendarController calendar

    readonly property bool isGranted: root.calendar.access === CalendarController.Granted
    readonly property bool isUnknown: root.calendar.access === CalendarController.Unknown

    // The button that had the keyboard goes once it has done its work.
    Keys.onTabPressed: root.nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
    Keys.onBacktabPressed: root.nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

    Card {
        anchors.fill: parent

        Item {
            anchors.fill: parent

            EventListModel {
                id: events

                calendar: root.calendar
            }

            Symbol {
                id: sparkles

                objectName: "sparkles"
                anchors.verticalCenter: heading.verticalCenter
                name: "sparkles"
                size: 10
                weight: Font.DemiBold
                color: Brand.muted2
            }

            SectionLabel {
                id: heading

                objectName: "heading"
                anchors.left: sparkles.right
                anchors.leftMargin: 5
                text: "Today"
            }

            QuibText {
                objectName: "left"
                anchors.right: parent.right
                anchors.verticalCenter: heading.verticalCenter
                visible: root.isGranted
                text: "%1 left".arg(events.count)
                size: 10
                color: Brand.muted2
            }

            QuibText {
                id: message

                objectName: "message"
                anchors.top: heading.bottom
                anchors.topMargin: 10
                width: parent.width
                visible: text !== ""
                text: root.isUnknown ? "See today's meetings and calls here."
                    : !root.isGranted ? "Calendar access is off. Turn it on in System Settings › Privacy & Security › Calendars."
                    : events.count === 0 ? "Clear for the rest of the day" : ""
                size: 11.5
                maximumLines: 4
                color: Brand.muted
            }

            PillButton {
                objectName: "connect"
                anchors.top: message.bottom
                anchors.topMargin: 10
                visible: root.isUnknown
                focus: root.isUnknown
                title: "Connect Calendar"
                fill: Brand.purple

                onClicked: root.calendar.requestAccess()
            }

            ReadingList {
                id: list

                objectName: "events"
                anchors.top: heading.bottom
                anchors.topMargin: 8
                anchors.bottom: parent.bottom
                width: parent.width
                visible: root.isGranted && events.count > 0
                focus: list.visible && list.overflows
                surface: Brand.cardSurface
                spacing: 6
                model: events
                Accessible.name: "Today's events"

                delegate: EventRow {
                    objectName: "event"
                    width: list.width
                    now: beat.now
                }

                Beat {
                    id: beat
                }
            }
        }
    }
}
