import QtQuick

/*!
    What an editor costs that is Qt's alone.
*/
FocusScope {
    id: root

    property alias text: input.text

    function reveal() {
        const top = input.cursorRectangle.y / 2;
        const bottom = top + input.cursorRectangle.height / 2;
        flickable.contentY = Math.min(top, Math.max(flickable.contentY, bottom - flickable.height));
    }

    Flickable {
        id: flickable

        anchors.fill: parent
        contentHeight: input.height / 2
        clip: true

        TextEdit {
            id: input

            width: flickable.width * 2
            height: Math.max(flickable.height * 2, implicitHeight)
            scale: 0.5
            transformOrigin: Item.TopLeft
            focus: true
            textFormat: TextEdit.PlainText
            wrapMode: TextEdit.Wrap
            font.pixelSize: 25

            onCursorRectangleChanged: root.reveal()
        }
    }
}
