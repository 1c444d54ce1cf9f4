pragma ComponentBehavior: Bound

import QtQuick

import Quib.Controls
import Quib.Core
import Quib.Models

/*!
    The files of the shelf side by side, and the menu of each. A press carries them out: the wheel and the
    keyboard scroll.
*/
SidewaysList {
    id: root

    required property ShelfListModel items
    required property Actions actions
    required property IconSource icons
    required property FileProbe files
    required property bool isMotionReduced

    signal removed(itemID: uuid)

    name: "Shelf"
    model: root.items
    room: 4
    interactive: false

    // A list keeps in sight what was, and new files come before it. Whoever walks by keys walks on.
    function showNewest() {
        if (!(root.currentItem as ShelfTile)?.showsFocus) {
            root.come(0);
        }
    }

    delegate: ShelfTile {
        id: tile

        required property int index

        objectName: "tile"
        icons: root.icons
        files: root.files
        isMotionReduced: root.isMotionReduced

        onActiveFocusChanged: if (activeFocus) root.come(index)
        onOpened: root.actions.openFile(path)
        onRemoved: byKey => root.removeItem(tile, byKey ? Qt.TabFocusReason : Qt.OtherFocusReason,
                                            () => root.removed(tile.itemID))
        onMenuWanted: place => menu.openFor(tile, place)
    }

    Connections {
        target: root.items

        function onRowsInserted() {
            // Once the rows know of it. (The linter does not know callLater as a function.)
            Qt.callLater(root.showNewest); // qmllint disable
        }
    }

    QuibMenu {
        id: menu

        property string path

        objectName: "tileMenu"
        width: 160
        model: [
            { title: "Open", symbol: "arrow.up.right.square" },
            { title: "Show in Finder", symbol: "folder" }
        ]

        onActivated: row => menu.act(row)

        function openFor(tile, place) {
            const here = root.mapFromItem(tile, place);
            menu.path = tile.path;
            menu.x = here.x;
            menu.y = here.y;
            menu.open();
        }

        function act(row) {
            if (row === 0) {
                root.actions.openFile(menu.path);
            } else {
                root.actions.reveal(menu.path);
            }
        }
    }
}
