import QtQuick

/*!
    The cursor of a text that is laid out at twice its size: one point wide when drawn. Stays lit while
    it moves.
*/
Rectangle {
    id: root

    required property bool isShown
    required property int position // In the text: in one that scrolls the cursor itself may stay in its place.

    property bool isLit: true

    width: 2
    color: "white"
    visible: root.isShown && root.isLit

    onPositionChanged: root.light()
    onXChanged: root.light()
    onYChanged: root.light()

    function light() {
        root.isLit = true;
        blink.restart();
    }

    Timer {
        id: blink

        interval: Application.styleHints.cursorFlashTime / 2
        repeat: true
        running: root.isShown && interval > 0

        onTriggered: root.isLit = !root.isLit
    }
}
