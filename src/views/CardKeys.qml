pragma ComponentBehavior: Bound

import QtQml
import QtQuick

import Quib.Notch

/*!
    The keys that choose a tab of the open card. A menu that is open keeps them.
*/
Item {
    id: root

    required property NotchModel model

    signal chosen(tab: int)

    Shortcut {
        sequence: "Ctrl+Tab"
        enabled: root.model.isExpanded

        onActivated: root.chosen(Tabs.beside(root.model.tab, 1))
    }

    Shortcut {
        sequence: "Ctrl+Shift+Tab"
        enabled: root.model.isExpanded

        onActivated: root.chosen(Tabs.beside(root.model.tab, -1))
    }

    Instantiator {
        model: Tabs.all

        delegate: Shortcut {
            id: number

            required property int index
            required property int modelData

            sequence: "Ctrl+%1".arg(number.index + 1)
            enabled: root.model.isExpanded

            onActivated: root.chosen(number.modelData)
        }
    }
}
