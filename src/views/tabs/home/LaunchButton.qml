import QtQuick

import Quib.Brand
import Quib.Controls
import Quib.Core
import Quib.Files
import Quib.Shapes
import Quib.Symbols
import Quib.Texts

/*!
    One thing to launch, by its picture and name. While the strip is edited it can be taken away, by
    its badge or by a key.
*/
SidewaysItem {
    id: root

    required property uuid itemID
    required property string name
    required property string target
    required property string path
    required property IconSource icons
    required property bool editing

    signal opened
    signal removed(byKey: bool)

    implicitWidth: capsule.implicitWidth
    implicitHeight: capsule.implicitHeight

    onEditingChanged: if (!root.editing && badge.activeFocus) capsule.forceActiveFocus()

    Keys.onDeletePressed: event => root.removeByKey(event)
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Backspace) {
            root.removeByKey(event);
        }
    }

    function focusBy(reason) {
        capsule.forceActiveFocus(reason);
        capsule.focusReason = reason; // The list may have given it the focus without.
    }

    // A key that is held down takes one away.
    function removeByKey(event) {
        event.accepted = root.editing;
        if (root.editing && !event.isAutoRepeat) {
            root.removed(true);
        }
    }

    PlainButton {
        id: capsule

        objectName: "launch"
        anchors.fill: parent
        focus: true
        focusPolicy: root.isStop || activeFocus ? Qt.TabFocus : Qt.NoFocus
        implicitHeight: 30
        horizontalPadding: 12
        help: root.target
        Accessible.name: "Open %1".arg(TextLine.beginning(root.name))
        Accessible.description: TextLine.beginning(root.target)

        onClicked: root.opened()
        onDoubleClicked: {} // Launches once.

        background: ContinuousRectangle {
            objectName: "capsule"
            radius: height / 2
            color: Brand.white(capsule.hovered ? 0.14 : 0.07)
        }

        contentItem: Row {
            spacing: 7

            Item {
                anchors.verticalCenter: parent.verticalCenter
                width: 16
                height: 16

                Symbol {
                    objectName: "globe"
                    anchors.verticalCenter: parent.verticalCenter
                    visible: root.path === ""
                    name: "globe"
                    size: 16
                    color: Brand.muted
                }

                FileIcon {
                    objectName: "icon"
                    anchors.fill: parent
                    source: root.icons
                    path: root.path
                }
            }

            QuibText {
                objectName: "name"
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, 140)
                text: root.name
                size: 11.5
                weight: Font.Medium
                elide: Text.ElideRight
                Accessible.ignored: true
            }
        }
    }

    PlainButton {
        id: badge

        objectName: "remove"
        anchors.right: parent.right
        anchors.rightMargin: -4
        anchors.top: parent.top
        anchors.topMargin: -4
        focusPolicy: Qt.NoFocus
        visible: root.editing
        Accessible.name: "Remove %1".arg(TextLine.beginning(root.name))

        onClicked: root.removed(false)
        onDoubleClicked: {} // Its second press may be on the badge that comes next.

        contentItem: Symbol {
            objectName: "badge"
            name: "minus.circle.fill"
            size: 14
            color: Brand.red
        }
    }
}
