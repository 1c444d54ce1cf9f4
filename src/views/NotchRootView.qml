pragma ComponentBehavior: Bound

import QtQuick

import Quib.Brand
import Quib.Controls
import Quib.Core
import Quib.Files
import Quib.Models
import Quib.Motion
import Quib.Notch
import Quib.Shapes
import Quib.Shell

/*!
    The content of the panel: one black shape at the top centre, a notch or the open card. Files
    dropped on it land on the shelf.
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

    readonly property size shapeSize: root.model.isExpanded ? root.cardSize : root.collapsedSize
    readonly property size cardSize: root.model.cardSize
    readonly property bool hasWings: timer.isRunning && !root.model.isLocked
    readonly property size collapsedSize: Qt.size(
        root.model.notchSize.width + 10 + (root.hasWings ? root.model.wingsWidth : 0), root.model.notchSize.height)

    focus: true

    /// The files come first, so that the shelf opens with them on it.
    function handleDrop(urls: list<url>) {
        urls.forEach(url => root.store.addToShelf([url]));
        if (!root.model.isExpanded) {
            root.commands.expand(true);
        }
    }

    /// Only files light the notch up, and not those of the shelf. What may only be moved stays where it is.
    function takeDrag(drag) {
        drag.accepted = drag.urls.some(url => url.toString().startsWith("file:"))
            && !drag.formats.includes(FileDrag.ownFormat)
            && (drag.supportedActions & Qt.CopyAction);
        if (drag.accepted) {
            drag.accept(Qt.CopyAction);
        }
    }

    /// Between two numbers as far as the spring has come; it may overshoot.
    function mix(collapsed: real, expanded: real): real {
        return Math.max(0, collapsed + (expanded - collapsed) * spring.value);
    }

    Shortcut {
        sequence: "Ctrl+Q" // Where Ctrl is the platform's command modifier.
        enabled: !OpenMenu.menu // The menu that quits has one of its own: of two, neither would do.

        onActivated: root.commands.quit()
    }

    RunningTimer {
        id: timer

        store: root.store
    }

    SpringValue {
        id: spring

        objectName: "spring"
        isSnapping: root.model.isMotionReduced
        falling.response: 0.2 // Rising has the defaults.
        falling.damping: 1.0
        target: root.model.isExpanded ? 1 : 0
    }

    FocusScope {
        id: shapeGroup

        objectName: "shapeGroup"
        anchors.horizontalCenter: parent.horizontalCenter
        width: root.mix(root.collapsedSize.width, root.cardSize.width)
        height: root.mix(root.collapsedSize.height, root.cardSize.height)
        clip: true
        focus: true

        NotchShape {
            objectName: "shape"
            anchors.fill: parent
            radius: root.mix(10, 26)
            outline: root.model.isDropTargeted ? Brand.glow : Brand.white(root.mix(0, 0.06))
        }

        LazyView {
            anchors.horizontalCenter: parent.horizontalCenter
            width: root.collapsedSize.width
            height: root.collapsedSize.height
            visible: root.hasWings
            shown: root.hasWings

            source: Qt.resolvedUrl("CollapsedTimerWings.qml")
            properties: ({objectName: "wings", model: root.model, timer: timer, spring: spring})
        }

        LazyView {
            anchors.horizontalCenter: parent.horizontalCenter
            width: root.cardSize.width
            height: root.cardSize.height
            shown: root.model.isExpanded
            mayWait: !root.model.isMotionReduced && !root.model.isPinned // Who pins it may go on by keys.
            focus: true

            source: Qt.resolvedUrl("ExpandedView.qml")
            properties: ({
                objectName: "expandedView",
                model: root.model,
                store: root.store,
                media: root.media,
                calendar: root.calendar,
                shortcuts: root.shortcuts,
                actions: root.actions,
                icons: root.icons,
                files: root.files,
                commands: root.commands,
                spring: spring
            })
        }
    }

    DropArea {
        id: dropArea

        objectName: "dropArea"
        anchors.fill: shapeGroup
        keys: ["text/uri-list"]

        // The copy action again on every move, or the source is told of a move and may delete.
        onEntered: drag => root.takeDrag(drag)
        onPositionChanged: drag => drag.accept(Qt.CopyAction)
        onContainsDragChanged: root.model.isDropTargeted = dropArea.containsDrag
        onDropped: drop => {
            drop.accept(Qt.CopyAction);
            root.handleDrop(drop.urls);
        }
    }
}
