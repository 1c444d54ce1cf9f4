import QtQuick

import Quib.Brand
import Quib.Controls

/*!
    What can be done for a client: open what is known of it, and track time.
*/
Row {
    id: root

    required property bool hasSite
    required property bool hasFolder
    required property bool isTimed

    signal siteClicked
    signal folderClicked
    signal codeClicked
    signal trackClicked
    signal stopClicked

    spacing: 6

    Action {
        objectName: "site"
        visible: root.hasSite
        title: "Site"
        symbol: "safari"

        onClicked: root.siteClicked()
    }

    Action {
        objectName: "folder"
        visible: root.hasFolder
        title: "Folder"

        onClicked: root.folderClicked()
    }

    Action {
        objectName: "code"
        visible: root.hasFolder
        title: "Code"
        symbol: "chevron.left.forwardslash.chevron.right"

        onClicked: root.codeClicked()
    }

    PillButton {
        objectName: "track"
        title: root.isTimed ? "Stop" : "Track time"
        fill: root.isTimed ? Qt.alpha(Brand.red, 0.7) : Brand.purple

        onClicked: root.isTimed ? root.stopClicked() : root.trackClicked()
    }

    component Action: PillButton {
        fill: Brand.white(0.14)
    }
}
