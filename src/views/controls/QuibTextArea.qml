pragma ComponentBehavior: Bound

import QtQuick

import Quib.Brand
import Quib.Views

/*!
    A field for many lines of text, which scrolls. What is bound to `value` is what it says until
    somebody edits it, and again whenever that becomes another text; the cursor stays where it was.
    Line ends of other systems are drawn as line ends, and become such when the text is edited.
*/
FocusScope {
    id: root

    property string value
    property string text // As it stands: the value, or what somebody made of it.
    property string placeholder
    property real size: 12

    property string drawn // To tell an edit from all else that a text changes by.
    property bool isSettling: true // Till the item below is complete: it takes its first text then.

    readonly property bool isEditing: input.activeFocus

    signal edited

    implicitWidth: 160
    implicitHeight: 60

    onValueChanged: root.settle()
    Component.onCompleted: root.isSettling = false

    // Says the value again.
    function settle() {
        if (root.text === root.value) {
            return;
        }
        const cursor = input.cursorPosition;
        const other = cursor === input.selectionStart ? input.selectionEnd : input.selectionStart;
        const isFirst = root.isSettling;
        root.text = root.value;
        root.isSettling = true;
        input.text = root.value;
        root.isSettling = isFirst;
        const limit = root.isEditing ? input.length : 0;
        input.select(Math.min(other, limit), Math.min(cursor, limit));
    }

    function follow() {
        const before = root.drawn;
        root.drawn = TypedText.of(input.textDocument);
        if (!root.isSettling && root.drawn !== before) {
            root.text = root.drawn;
            root.edited();
        }
    }

    function reveal() {
        const top = input.cursorRectangle.y / 2 - 6;
        const bottom = top + input.cursorRectangle.height / 2 + 12;
        flickable.contentY = Math.min(top, Math.max(flickable.contentY, bottom - flickable.height));
    }

    function move(forward) {
        input.nextItemInFocusChain(forward).forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason);
    }

    ContinuousRectangle {
        objectName: "surface"
        anchors.fill: parent
        radius: 8
        color: Brand.white(0.07)
    }

    QuibText {
        objectName: "placeholder"
        x: 9
        y: 6
        width: root.width - 18
        visible: input.length === 0 && input.preeditText === ""
        text: root.placeholder
        size: root.size
        color: Brand.muted
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    Flickable {
        id: flickable

        objectName: "flickable"
        anchors.fill: parent
        contentHeight: input.height / 2
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        TextEdit {
            id: input

            objectName: "input"
            width: flickable.width * 2
            height: Math.max(flickable.height * 2, implicitHeight)
            scale: 0.5
            transformOrigin: Item.TopLeft
            leftPadding: 18
            rightPadding: 18
            topPadding: 12
            bottomPadding: 12
            focus: true
            activeFocusOnTab: true
            selectByMouse: true
            textFormat: TextEdit.PlainText
            wrapMode: TextEdit.Wrap
            color: "white"
            selectionColor: Brand.purple
            selectedTextColor: "white"
            font.pixelSize: root.size * 2
            font.hintingPreference: Font.PreferNoHinting
            Accessible.role: Accessible.EditableText
            Accessible.name: root.placeholder
            Accessible.multiLine: true

            cursorDelegate: FieldCursor {
                isShown: input.cursorVisible
                position: input.cursorPosition
            }

            onTextChanged: root.follow()
            onCursorRectangleChanged: root.reveal()

            Keys.onTabPressed: root.move(true)
            Keys.onBacktabPressed: root.move(false)
        }

        ScrollThumb {
            flickable: flickable
        }
    }

    KeyboardFocus {
        id: keyboard

        item: input
    }

    FocusRing {
        objectName: "ring"
        visible: keyboard.isShown
        radius: 10
    }

    HoverHandler {
        cursorShape: Qt.IBeamCursor
    }
}
