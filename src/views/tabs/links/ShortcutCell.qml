import QtQuick

import Quib.Core

/*!
    The place of a shortcut in the grid of its group: the button, with half a gap around it.
*/
FocusScope {
    id: root

    required property string name
    required property string symbol
    required property string application
    required property string url
    required property real gap
    required property bool isStop
    required property color tint
    required property bool gold
    required property IconSource icons

    signal opened

    function focusButton() {
        button.forceActiveFocus(Qt.TabFocusReason);
        button.focusReason = Qt.TabFocusReason; // The grid may have given it the focus without.
    }

    BigShortcutButton {
        id: button

        objectName: "shortcut"
        anchors.fill: parent
        anchors.margins: root.gap / 2
        focus: true
        focusPolicy: root.isStop || activeFocus ? Qt.TabFocus : Qt.NoFocus
        name: root.name
        symbol: root.symbol
        application: root.application
        url: root.url
        tint: root.tint
        gold: root.gold
        icons: root.icons

        onClicked: root.opened()
        onDoubleClicked: {} // Opens once.
    }
}
