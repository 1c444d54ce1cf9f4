import QtQuick

/*!
    A list that is one stop of the keyboard: its current row, whose buttons are stops while
    `ListView.isCurrentItem`. Arrows, pages and ends step to the other rows.
*/
ListView {
    id: root

    property color surface: "black" // What the list lies on.

    signal stepped(by: int) // Rows, by a key; perhaps beyond the ends.
    signal emptied(reason: int) // The row with the focus is gone, and no other is there.

    clip: true
    boundsBehavior: Flickable.StopAtBounds
    cacheBuffer: 0 // Rows made beforehand are stops of the keyboard before they are whole.
    highlightFollowsCurrentItem: false
    keyNavigationEnabled: false
    Accessible.role: Accessible.List

    Keys.onPressed: event => root.stepByKey(event)

    function reveal(row) {
        edges.revealRow(row);
    }

    // For rows to which the focus comes.
    function come(row) {
        root.currentIndex = row;
        root.reveal(row);
    }

    function focusRow(row, reason) {
        root.forceLayout(); // A row that is gone may still be current.
        if (root.count === 0) {
            return root.emptied(reason);
        }
        root.come(Math.max(0, Math.min(row, root.count - 1)));
        root.currentItem.forceActiveFocus(reason);
        const button = root.Window.activeFocusItem as PlainButton;
        if (button) {
            button.focusReason = reason; // The list may have given it the focus without.
        }
    }

    // What a change puts in the place of the row with the focus takes the focus over.
    function replace(row, change) {
        const button = root.activeFocus && root.currentIndex === row ? root.Window.activeFocusItem as PlainButton : null;
        const reason = button?.visualFocus ? Qt.TabFocusReason : Qt.OtherFocusReason;
        change();
        if (button) {
            root.focusRow(row, reason);
        }
    }

    function stepByKey(event) {
        event.accepted = true;
        switch (event.key) {
        case Qt.Key_Up: return root.stepped(-1);
        case Qt.Key_Down: return root.stepped(1);
        case Qt.Key_PageUp: return root.stepped(-root.rowsInSight());
        case Qt.Key_PageDown: return root.stepped(root.rowsInSight());
        case Qt.Key_Home: return root.stepped(-root.count);
        case Qt.Key_End: return root.stepped(root.count);
        }
        event.accepted = false;
    }

    function rowsInSight() {
        const row = root.currentItem ? root.currentItem.height + root.spacing : root.height;
        return Math.max(1, Math.floor(root.height / row));
    }

    ScrollEdges {
        id: edges

        flickable: root
        surface: root.surface
    }
}
