pragma ComponentBehavior: Bound

import QtQuick

import Quib.Brand
import Quib.Controls
import Quib.Core
import Quib.Models
import Quib.Shell
import Quib.Symbols

/*!
    The user's shortcuts: a box for each group, side by side. What is wrong with the file stands above
    them. More boxes than the tab is wide scroll.
*/
FocusScope {
    id: root

    required property Shortcuts shortcuts
    required property Actions actions
    required property IconSource icons
    required property Commands commands
    required property LazyView page

    readonly property real boxGap: 10
    readonly property real smallestBox: 136
    readonly property real boxWidth: Math.max(
        root.smallestBox, (boxes.width - root.boxGap * (groups.count - 1)) / Math.max(1, groups.count))
    readonly property Shortcuts shownShortcuts: root.page.shown ? root.shortcuts : null

    onShownShortcutsChanged: root.shownShortcuts?.reload()

    ShortcutGroupModel {
        id: groups

        shortcuts: root.shortcuts
    }

    Item {
        id: problem

        objectName: "problem"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.topMargin: 10
        height: visible ? problemText.implicitHeight : 0
        visible: groups.problem !== ""

        Symbol {
            id: warning

            objectName: "problemSymbol"
            anchors.verticalCenter: parent.verticalCenter
            name: "exclamationmark.triangle.fill"
            size: 10.5
            color: Brand.gold
        }

        QuibText {
            id: problemText

            objectName: "problemText"
            anchors.left: warning.right
            anchors.leftMargin: 6
            anchors.right: parent.right
            text: groups.problem
            size: 10.5
            color: Brand.gold
            elide: Text.ElideRight
        }
    }

    Flickable {
        id: boxes

        objectName: "groups"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: problem.bottom
        anchors.topMargin: problem.visible ? 8 : 0
        anchors.bottom: parent.bottom
        contentWidth: row.width
        contentHeight: height
        focus: true
        boundsBehavior: Flickable.StopAtBounds
        clip: interactive
        flickableDirection: Flickable.HorizontalFlick
        interactive: contentWidth > width + 0.5

        SidewaysWheel {
            flickable: boxes
            enabled: boxes.interactive
        }

        Row {
            id: row

            height: boxes.height
            spacing: root.boxGap

            Repeater {
                model: groups

                delegate: ShortcutGroupCard {
                    required property int index

                    objectName: "group"
                    width: root.boxWidth
                    height: row.height
                    focus: index === 0
                    icons: root.icons

                    onActiveFocusChanged: if (activeFocus) edges.reveal(this)
                    onOpened: url => root.actions.open(url)
                    onEditClicked: root.commands.editShortcuts()
                }
            }
        }
    }

    ScrollEdges {
        id: edges

        flickable: boxes
    }
}
