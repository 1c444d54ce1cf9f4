pragma ComponentBehavior: Bound

import QtQuick

import Quib.Brand
import Quib.Controls
import Quib.Core
import Quib.Models
import Quib.Notch

/*!
    The files that were dropped on the notch, newest first, until they are taken away or carried on.
*/
FocusScope {
    id: root

    required property Store store
    required property Actions actions
    required property IconSource icons
    required property FileProbe files
    required property NotchModel model

    ShelfListModel {
        id: items

        store: root.store
    }

    Item {
        id: header

        objectName: "header"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.topMargin: 10
        height: label.height

        SectionLabel {
            id: label

            objectName: "heading"
            text: "File shelf · drag files onto the notch"
        }

        PlainButton {
            objectName: "clear"
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            visible: items.count > 0
            Accessible.name: "Clear the shelf"

            onClicked: root.store.clearShelf()
            onVisibleChanged: if (!visible && activeFocus) list.forceActiveFocus(Qt.TabFocusReason)

            contentItem: QuibText {
                text: "Clear"
                size: 10.5
                color: Brand.muted2
                Accessible.ignored: true
            }
        }
    }

    ShelfPlaceholder {
        objectName: "placeholder"
        anchors.fill: parent
        anchors.topMargin: header.anchors.topMargin + header.height + 8
        visible: items.count === 0
    }

    ShelfList {
        id: list

        objectName: "shelfList"
        anchors.fill: parent
        anchors.topMargin: header.anchors.topMargin + header.height + 8
        visible: items.count > 0
        focus: true
        items: items
        actions: root.actions
        icons: root.icons
        files: root.files
        isMotionReduced: root.model.isMotionReduced

        onRemoved: itemID => root.store.removeFromShelf(itemID)
    }
}
