pragma ComponentBehavior: Bound

import QtQuick

import Quib.Brand
import Quib.Controls
import Quib.Motion
import Quib.Notch
import Quib.Shell
import Quib.Symbols
import Quib.Texts

/*!
    The tabs left of the notch, the date and the pin right of it. The tabs are one stop of the keyboard,
    and arrows and ends choose.
*/
Item {
    id: root

    required property NotchModel model
    required property Commands commands

    function focusTab() {
        buttons.itemAt(root.model.tab).forceActiveFocus(Qt.TabFocusReason); // Tabs count in their order.
    }

    function chooseTab(tab) {
        root.model.tab = tab;
        root.focusTab();
    }

    function chooseByKey(event) {
        event.accepted = true;
        switch (event.key) {
        case Qt.Key_Left: return root.chooseTab(Tabs.beside(root.model.tab, -1));
        case Qt.Key_Right: return root.chooseTab(Tabs.beside(root.model.tab, 1));
        case Qt.Key_Home: return root.chooseTab(Tabs.all[0]);
        case Qt.Key_End: return root.chooseTab(Tabs.beside(Tabs.all[0], -1));
        }
        event.accepted = false;
    }

    function openMenu(x) {
        root.commands.menu.open(); // Brings its check marks up to date.
        menu.x = x;
        menu.open();
    }

    // Where no status bar offers the menu.
    TapHandler {
        acceptedButtons: Qt.RightButton
        enabled: !root.commands.isMenuInStatusBar

        onTapped: point => root.openMenu(point.position.x)
    }

    Shortcut {
        sequences: ["Menu", "Shift+F10"]
        enabled: root.visible && !root.commands.isMenuInStatusBar

        onActivated: root.openMenu(tabs.x + tabs.width)
    }

    QuibMenu {
        id: menu

        objectName: "statusMenu"
        width: 200
        model: root.commands.menu

        onActivated: row => root.commands.menu.choose(row)

        // The window's own is not heard while a menu is open.
        Shortcut {
            sequence: "Ctrl+Q"
            enabled: menu.opened // Two that are heard at once are heard as none.

            onActivated: root.commands.quit()
        }
    }

    Row {
        id: tabs

        objectName: "tabs"
        anchors.left: parent.left
        anchors.leftMargin: 20
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2
        Accessible.role: Accessible.PageTabList
        Accessible.name: "Tabs"

        Keys.onPressed: event => root.chooseByKey(event)

        Repeater {
            id: buttons

            model: Tabs.all

            TabButton {
                required property int modelData

                model: root.model
                tab: modelData
            }
        }
    }

    Row {
        objectName: "dateAndPin"
        anchors.right: parent.right
        anchors.rightMargin: 20
        anchors.verticalCenter: parent.verticalCenter
        spacing: 8

        QuibText {
            objectName: "date"
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, root.width - 40 - tabs.width - root.model.notchSize.width - 10 - 20)
            text: Format.weekdayAndDay(beat.now)
            size: 11
            weight: Font.Medium
            color: Brand.muted
            elide: Text.ElideRight

            Beat {
                id: beat

                interval: 30
            }
        }

        PlainButton {
            objectName: "pin"
            anchors.verticalCenter: parent.verticalCenter
            help: "Keep open"
            role: Accessible.CheckBox
            isCheckable: true
            isChecked: root.model.isPinned
            Accessible.name: help
            Accessible.description: ""

            onClicked: root.model.isPinned = !root.model.isPinned

            contentItem: Symbol {
                objectName: "symbol"
                name: root.model.isPinned ? "pin.fill" : "pin"
                size: 12
                color: root.model.isPinned ? Brand.glow : Brand.muted
            }
        }
    }
}
