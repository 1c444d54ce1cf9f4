pragma ComponentBehavior: Bound

import QtQuick

import Quib.Brand
import Quib.Controls
import Quib.Shapes
import Quib.Texts

/*!
    A field for one line of text. What is bound to `value` is what the field says until somebody edits
    it, and again whenever that becomes another text; the cursor stays where it was.
*/
FocusScope {
    id: root

    property alias text: input.text
    property alias readOnly: input.readOnly
    property string value
    property bool settles: false // A text that is edited stays as typed until the field is left.
    property string placeholder
    property real size: 12
    property real horizontalPadding: 9
    property real verticalPadding: 6
    property color surfaceColor: Brand.white(0.07)

    readonly property bool isEditing: input.activeFocus

    signal accepted
    signal edited

    implicitWidth: 160
    implicitHeight: input.implicitHeight / 2 + 2 * root.verticalPadding

    onValueChanged: if (!root.settles || !root.isEditing) root.settle()
    onIsEditingChanged: if (root.settles && root.isLeft()) root.settle()

    function selectAll() {
        input.selectAll();
    }

    // A field that is hidden, or whose window is not the one that has the keys, has not been left.
    function isLeft() {
        return !root.isEditing && root.visible && root.Window.active;
    }

    // Of what is drawn at half its size.
    function positionAt(mouse) {
        return input.positionAt(2 * (mouse.x - root.horizontalPadding), 2 * mouse.y);
    }

    function press(mouse) {
        input.forceActiveFocus(Qt.MouseFocusReason);
        keyboard.take(Qt.MouseFocusReason);
        if (mouse.modifiers & Qt.ShiftModifier) {
            input.moveCursorSelection(root.positionAt(mouse), TextInput.SelectCharacters);
        } else {
            input.cursorPosition = root.positionAt(mouse);
        }
    }

    // Stands in the text as one step that can be undone: moving the cursor ends a step.
    function paste(line) {
        if (root.readOnly || line === "") {
            return;
        }
        input.remove(input.selectionStart, input.selectionEnd);
        const cursor = input.cursorPosition;
        input.cursorPosition = 0;
        input.cursorPosition = input.length;
        input.insert(cursor, line);
        input.cursorPosition = cursor;
        input.cursorPosition = cursor + line.length;
    }

    // Says the value again.
    function settle() {
        if (input.text === root.value) {
            return;
        }
        const cursor = input.cursorPosition;
        const other = cursor === input.selectionStart ? input.selectionEnd : input.selectionStart;
        input.text = root.value;
        const limit = root.isEditing ? input.length : 0;
        input.select(Math.min(other, limit), Math.min(cursor, limit));
    }

    ContinuousRectangle {
        objectName: "surface"
        anchors.fill: parent
        radius: 8
        color: root.surfaceColor
    }

    QuibText {
        objectName: "placeholder"
        x: root.horizontalPadding
        y: root.verticalPadding
        width: root.width - 2 * root.horizontalPadding
        visible: input.length === 0 && input.preeditText === ""
        text: root.placeholder
        size: root.size
        color: Brand.muted
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    // The text is cut off at the padding, but a press in the padding is a press on the text.
    MouseArea {
        anchors.fill: parent
        preventStealing: true

        onPressed: mouse => root.press(mouse)
        onPositionChanged: mouse => input.moveCursorSelection(root.positionAt(mouse), TextInput.SelectCharacters)
        onDoubleClicked: input.selectWord()
    }

    Item {
        id: opening

        x: root.horizontalPadding
        width: root.width - 2 * root.horizontalPadding
        height: root.height
        clip: true

        TextInput {
            id: input

            objectName: "input"
            width: opening.width * 2 - 2 // Past the end of a long text there is room for the cursor.
            height: opening.height * 2
            scale: 0.5
            transformOrigin: Item.TopLeft
            verticalAlignment: TextInput.AlignVCenter
            focus: true
            activeFocusOnTab: true
            selectByMouse: true
            color: "white"
            selectionColor: Brand.purple
            selectedTextColor: "white"
            font.pixelSize: root.size * 2
            font.hintingPreference: Font.PreferNoHinting
            Accessible.role: Accessible.EditableText
            Accessible.name: root.placeholder

            containmentMask: Item { // The panel asks whether a press was on it.
                parent: input
                x: -2 * root.horizontalPadding
                width: root.width * 2
                height: root.height * 2
            }

            cursorDelegate: FieldCursor {
                isShown: input.cursorVisible
                position: input.cursorPosition
            }

            onAccepted: root.accepted()
            onTextEdited: root.edited()

            Keys.onPressed: event => {
                event.accepted = event.matches(StandardKey.Paste);
                if (event.accepted) {
                    root.paste(PastedLine.ofClipboard());
                }
            }
        }
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.MiddleButton

        onPressed: mouse => {
            root.press(mouse);
            root.paste(PastedLine.ofSelection());
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
