pragma ComponentBehavior: Bound

import QtQuick

import Quib.Brand
import Quib.Controls
import Quib.Core
import Quib.Models

/*!
    The next open tasks, as many as there is room for. One is the stop of the keyboard, and arrows lead
    to the others.
*/
FocusScope {
    id: root

    required property Store store

    property int stop: 0

    readonly property int rowHeight: 18
    readonly property int gap: Math.max(0, Math.min(8, Math.floor((root.height - 3 * root.rowHeight) / 2)))
    readonly property int places: Math.floor((root.height + root.gap) / (root.rowHeight + root.gap))

    readonly property int shown: Math.min(tasks.count, root.places)

    signal emptied

    Accessible.role: Accessible.List
    Accessible.name: "Open tasks"

    Keys.onUpPressed: root.step(-1)
    Keys.onDownPressed: root.step(1)

    function step(by) {
        const row = Math.max(0, Math.min(root.stop + by, root.shown - 1));
        rows.itemAt(row)?.forceActiveFocus(Qt.TabFocusReason);
    }

    // The keyboard stays with the row that takes the place of the one that goes.
    function tickOff(row, task, hasKeyboard) {
        root.store.toggleTask(task);
        if (hasKeyboard && root.shown > 0) {
            rows.itemAt(Math.min(row, root.shown - 1)).forceActiveFocus(Qt.TabFocusReason);
        } else if (hasKeyboard) {
            root.emptied();
        }
    }

    OpenTaskListModel {
        id: tasks

        store: root.store
    }

    Column {
        width: parent.width
        spacing: root.gap

        Repeater {
            id: rows

            model: tasks

            delegate: FocusTask {
                required property int index

                objectName: "task"
                width: root.width
                height: root.rowHeight
                visible: index < root.places
                isStop: index === Math.min(root.stop, root.shown - 1)

                onActiveFocusChanged: if (activeFocus) root.stop = index
                onToggled: root.tickOff(index, taskID, activeFocus)
            }
        }
    }

    QuibText {
        objectName: "nothing"
        visible: tasks.count === 0
        text: "No open tasks"
        size: 11.5
        color: Brand.muted2
    }
}
