pragma ComponentBehavior: Bound

import QtQuick

import Quib.Core
import Quib.Motion
import Quib.Notch
import Quib.Shell

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
    required property SpringValue spring

    // The first frame is the growing notch's alone: so faint it is not seen. But keys find it at once.
    visible: root.opacity > (root.Window.active ? 0 : 0.1)
    transformOrigin: Item.Top

    Keys.onEscapePressed: event => root.leaveByKey(event)

    // A key takes the focus along, and shows where it is.
    function showTab(tab) {
        area.focus = false; // Else the new tab has it at once, without the reason that shows its ring.
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
            source: Qt.resolvedUrl("../Tabs/Home/HomeView.qml")
            properties: ({
                objectName: "homeView",
                media: root.media,
                calendar: root.calendar,
                store: root.store,
                model: root.model,
                actions: root.actions,
                icons: root.icons,
                commands: root.commands
            })
        }

        Page {
            id: linksPage

            tab: Tab.Links
            source: Qt.resolvedUrl("../Tabs/Links/ShortcutsView.qml")
            properties: ({
                objectName: "shortcutsView",
                shortcuts: root.shortcuts,
                actions: root.actions,
                icons: root.icons,
                commands: root.commands,
                page: linksPage
            })
        }

        Page {
            id: clientsPage

            tab: Tab.Clients
            source: Qt.resolvedUrl("../Tabs/Clients/ClientsView.qml")
            properties: ({
                objectName: "clientsView",
                store: root.store,
                actions: root.actions,
                commands: root.commands,
                page: clientsPage
            })
        }

        Page {
            tab: Tab.Tasks
            source: Qt.resolvedUrl("../Tabs/Tasks/TasksView.qml")
            properties: ({
                objectName: "tasksView",
                store: root.store
            })
        }

        Page {
            tab: Tab.Time
            source: Qt.resolvedUrl("../Tabs/Time/TimeView.qml")
            properties: ({
                objectName: "timeView",
                store: root.store,
                actions: root.actions
            })
        }

        Page {
            tab: Tab.Shelf
            source: Qt.resolvedUrl("../Tabs/Shelf/ShelfView.qml")
            properties: ({
                objectName: "shelfView",
                store: root.store,
                actions: root.actions,
                icons: root.icons,
                files: root.files,
                model: root.model
            })
        }

        Page {
            tab: Tab.Notes
            source: Qt.resolvedUrl("../Tabs/Notes/NotesView.qml")
            properties: ({
                objectName: "notesView",
                store: root.store
            })
        }
    }

    states: [
        State {
            name: "shown"
            when: root.model.isExpanded

            PropertyChanges {
                target: root
                opacity: Math.min(1, root.spring.value)
                scale: 0.97 + 0.03 * root.spring.value
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
