pragma ComponentBehavior: Bound

import QtQuick

import Quib.Notch
import Quib.Views

/*!
    The open card: the tab bar and the view of the selected tab. It arrives growing a little and
    fading in, and leaves by fading out. The Escape key leaves a field, else closes the card.
*/
FocusScope {
    id: root

    required property NotchModel model
    required property Store store
    required property MediaController media
    required property CalendarController calendar
    required property Shortcuts shortcuts
    required property Actions actions
    required property IconSource icons
    required property FileProbe files
    required property Commands commands
    required property real arrival

    visible: root.opacity > 0
    transformOrigin: Item.Top

    Keys.onEscapePressed: event => root.leaveByKey(event)

    // A key takes the focus along, and shows where it is.
    function showTab(tab) {
        area.focus = false; // Or the new tab would have it before, without the reason.
        root.model.tab = tab;
        area.forceActiveFocus(Qt.TabFocusReason);
    }

    function leaveByKey(event) {
        const line = root.Window.activeFocusItem as TextInput;
        const text = root.Window.activeFocusItem as TextEdit;
        if (event.isAutoRepeat || line?.inputMethodComposing || text?.inputMethodComposing) {
            return;
        }
        if (line || text) {
            bar.focusTab();
        } else {
            root.commands.dismiss();
        }
    }

    Connections {
        target: root.model

        function onIsExpandedChanged() {
            area.focus = true; // The next time begins in the tab again.
        }
    }

    CardMenus {
        commands: root.commands
    }

    CardKeys {
        model: root.model

        onChosen: tab => root.showTab(tab)
    }

    TopBar {
        id: bar

        objectName: "topBar"
        anchors.left: area.left
        anchors.right: area.right
        anchors.top: parent.top
        anchors.topMargin: 8
        height: Math.max(30, root.model.notchSize.height)
        model: root.model
        commands: root.commands
    }

    FocusScope {
        id: area

        objectName: "tabArea"
        anchors.fill: parent
        anchors.topMargin: bar.anchors.topMargin + bar.height
        anchors.leftMargin: 22
        anchors.rightMargin: 22
        anchors.bottomMargin: 14
        focus: true

        Page {
            tab: Tab.Home

            view: HomeView {
                objectName: "homeView"
                anchors.fill: parent
                focus: true
                media: root.media
                calendar: root.calendar
                store: root.store
                model: root.model
                actions: root.actions
                icons: root.icons
                commands: root.commands
            }
        }

        Page {
            id: linksPage

            tab: Tab.Links

            view: ShortcutsView {
                objectName: "shortcutsView"
                anchors.fill: parent
                focus: true
                shortcuts: root.shortcuts
                actions: root.actions
                icons: root.icons
                commands: root.commands
                shown: linksPage.shown
            }
        }

        Page {
            id: clientsPage

            tab: Tab.Clients

            view: ClientsView {
                objectName: "clientsView"
                anchors.fill: parent
                focus: true
                store: root.store
                actions: root.actions
                commands: root.commands
                shown: clientsPage.shown
            }
        }

        Page {
            tab: Tab.Tasks

            view: TasksView {
                objectName: "tasksView"
                anchors.fill: parent
                focus: true
                store: root.store
            }
        }

        Page {
            tab: Tab.Time

            view: TimeView {
                objectName: "timeView"
                anchors.fill: parent
                focus: true
                store: root.store
                actions: root.actions
            }
        }

        Page {
            tab: Tab.Shelf

            view: ShelfView {
                objectName: "shelfView"
                anchors.fill: parent
                focus: true
                store: root.store
                actions: root.actions
                icons: root.icons
                files: root.files
                isMotionReduced: root.model.isMotionReduced
            }
        }

        Page {
            tab: Tab.Notes

            view: NotesView {
                objectName: "notesView"
                anchors.fill: parent
                focus: true
                store: root.store
            }
        }
    }

    states: [
        State {
            name: "shown"
            when: root.model.isExpanded

            PropertyChanges {
                target: root
                opacity: Math.min(1, root.arrival)
                scale: 0.97 + 0.03 * root.arrival
            }
        },
        State {
            name: "hidden"
            when: !root.model.isExpanded

            PropertyChanges {
                target: root
                opacity: 0
            }
        }
    ]

    transitions: Transition {
        to: "hidden"
        enabled: !root.model.isMotionReduced

        NumberAnimation {
            property: "opacity"
            duration: 80
            easing.type: Easing.OutQuad
        }
    }

    component Page: TabPage {
        model: root.model
    }
}
