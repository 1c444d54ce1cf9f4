pragma ComponentBehavior: Bound

import QtQuick

import Quib.Brand
import Quib.Controls
import Quib.Core
import Quib.Models

/*!
    The tasks, one row each. What takes the place of a row that goes takes the keyboard too.
*/
RowList {
    id: root

    required property Store store
    required property TaskListModel tasks

    spacing: 2
    model: root.tasks
    Accessible.name: "Tasks"

    onStepped: by => root.focusRow(root.currentIndex + by, Qt.TabFocusReason)

    delegate: TaskRow {
        required property int index

        width: root.width
        isStop: ListView.isCurrentItem

        onActiveFocusChanged: if (activeFocus) root.come(index)
        onToggled: root.replace(index, () => root.store.toggleTask(taskID))
        onDeleted: root.replace(index, () => root.store.deleteTask(taskID))
    }

    QuibText {
        objectName: "nothing"
        anchors.horizontalCenter: parent.horizontalCenter
        y: 30
        visible: root.tasks.count === 0
        text: "Nothing to do. Nice."
        size: 12
        color: Brand.muted2
    }
}
