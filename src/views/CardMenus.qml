import QtQuick
import QtQuick.Templates as T

import Quib.Controls
import Quib.Shell

/*!
    What the menus of the card have in common: a menu has the keyboard while it is open, so that Escape
    closes it however it was opened, and a click on something else than the card closes it.
*/
Item {
    id: root

    required property Commands commands

    property bool hasTaken: false // Not where the panel had the keyboard before.

    readonly property T.Popup menu: OpenMenu.menu as T.Popup

    onMenuChanged: root.menu ? root.take() : root.giveBack()

    function take() {
        root.hasTaken = root.commands.takeKeyboard();
    }

    function giveBack() {
        if (root.hasTaken) {
            root.hasTaken = false;
            root.commands.giveBackKeyboard();
        }
    }

    Connections {
        target: root.commands

        function onClickedElsewhere() {
            root.menu?.close();
        }
    }
}
