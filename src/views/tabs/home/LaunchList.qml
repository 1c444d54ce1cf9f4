pragma ComponentBehavior: Bound

import QtQuick

import Quib.Controls
import Quib.Core
import Quib.Models

/*!
    The quick-launch buttons side by side.
*/
SidewaysList {
    id: root

    required property LaunchListModel items
    required property IconSource icons
    required property bool editing

    signal opened(target: string)
    signal removed(itemID: uuid)

    name: "Quick launch"
    model: root.items
    showsAdded: root.editing

    delegate: LaunchButton {
        id: button

        required property int index

        objectName: "item"
        icons: root.icons
        editing: root.editing

        onActiveFocusChanged: if (activeFocus) root.come(index)
        onOpened: root.opened(target)
        onRemoved: byKey => root.removeItem(button, byKey ? Qt.TabFocusReason : Qt.OtherFocusReason,
                                            () => root.removed(button.itemID))
    }
}
