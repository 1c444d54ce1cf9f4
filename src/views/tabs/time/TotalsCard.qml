pragma ComponentBehavior: Bound

import QtQuick

import Quib.Brand
import Quib.Controls
import Quib.Core
import Quib.Models
import Quib.Motion
import Quib.Tabs.Time
import Quib.Texts

/*!
    The time of the week or the month and what it earns, per client, and the export of all of it.
*/
Item {
    id: root

    required property Store store
    required property Actions actions

    onVisibleChanged: if (visible) timesheet.forget()

    TotalListModel {
        id: totals

        store: root.store
        shown: root.visible
    }

    TimesheetExport {
        id: timesheet

        store: root.store

        onWritten: path => root.actions.reveal(path)
    }

    Beat {
        interval: 15

        onBeat: totals.refresh()
    }

    Card {
        id: card

        anchors.fill: parent

        Item {
            width: root.width - 2 * card.padding
            height: root.height - 2 * card.padding

            QuibText {
                id: total

                objectName: "total"
                width: Math.min(implicitWidth, parent.width)
                text: Format.formatDuration(totals.totalSeconds, false)
                size: 22
                weight: Font.Bold
                elide: Text.ElideRight
            }

            QuibText {
                objectName: "billable"
                anchors.left: total.right
                anchors.leftMargin: 8
                anchors.right: parent.right
                anchors.baseline: total.baseline
                text: "%1 billable".arg(TextLine.isolated(Format.formatMoney(totals.totalAmount)))
                size: 12
                color: Brand.muted
                elide: Text.ElideRight
            }

            Row {
                id: choices

                objectName: "choices"
                anchors.top: total.bottom
                anchors.topMargin: 8
                spacing: 4

                SegmentedPicker {
                    objectName: "period"
                    anchors.verticalCenter: parent.verticalCenter
                    width: 170
                    name: "Period"
                    titles: ["This week", "This month"]
                    selected: totals.period

                    onChosen: index => totals.period = index
                }

                IconButton {
                    objectName: "export"
                    symbol: timesheet.hasExported ? "checkmark" : "square.and.arrow.up"
                    help: "Export timesheet CSV to Downloads"

                    onClicked: timesheet.write()
                }
            }

            TotalList {
                objectName: "totalList"
                anchors.left: parent.left
                anchors.right: parent.right
                anchors.top: choices.bottom
                anchors.topMargin: 8
                anchors.bottom: parent.bottom
                totals: totals
            }
        }
    }
}
