pragma ComponentBehavior: Bound

import QtQuick

import Quib.Brand
import Quib.Controls
import Quib.Shapes
import Quib.Texts

/*!
    A field for many lines of text, which scrolls. What is bound to `value` is what it says until
    somebody edits it, and again whenever that becomes another text; the cursor stays where it was.
    Line ends of other systems are drawn as line ends, and become such when the text is edited.
*/
FocusScope {
    id: root

    property alias value: typed.value
    property string placeholder
    property real size: 12
    property real horizontalPadding: 9
    property real verticalPadding: 6
    property real radius: 8
    property color surfaceColor: Brand.white(0.07)

    readonly property alias text: typed.text // As it stands: the value, or what somebody made of it.
    readonly property bool isEditing: input.activeFocus

    signal edited

    implicitHeight: 60

    Component.onCompleted: typed.isSettling = false

    function draw() {
        const cursor = input.cursorPosition;
        const other = cursor === input.selectionStart ? input.selectionEnd : input.selectionStart;
        const isFirst = typed.isSettling;
        typed.isSettling = true;
        input.text = typed.text;
        typed.isSettling = isFirst;
        const limit = root.isEditing ? input.length : 0;
        input.select(Math.min(other, limit), Math.min(cursor, limit));
    }

    // Adds to the end in one step, which can be undone. What is there stays as it is, to its line ends,
    // and so does what is selected; a cursor at the end goes along.
    function append(addition) {
        const first = input.selectionStart;
        const last = input.selectionEnd;
        const cursor = input.cursorPosition;
        typed.isSettling = true;
        input.insert(input.length, addition);
        typed.isSettling = false;
        if (first < last) {
            input.select(cursor === first ? last : first, cursor);
        }
        typed.append(addition);
    }

    function reveal() {
        const top = input.cursorRectangle.y / 2 - root.verticalPadding;
        const bottom = top + input.cursorRectangle.height / 2 + 2 * root.verticalPadding;
        flickable.contentY = Math.min(top, Math.max(flickable.contentY, bottom - flickable.height));
    }

    // By what is in sight, less a line to hold on to.
    function turnPage(forward, selects) {
        const rect = input.cursorRectangle;
        const page = Math.max(1, flickable.height * 2 - rect.height);
        const position = input.positionAt(rect.x, rect.y + rect.height / 2 + (forward ? page : -page));
        if (selects) {
            input.moveCursorSelection(position, TextEdit.SelectCharacters);
        } else {
            input.cursorPosition = position;
        }
    }

    function turnPageByKey(event) {
        if (event.key === Qt.Key_PageUp || event.key === Qt.Key_PageDown) {
            event.accepted = true;
            root.turnPage(event.key === Qt.Key_PageDown, event.modifiers & Qt.ShiftModifier);
        } else {
            event.accepted = false;
        }
    }

    // What is selected grows while the pointer is held beyond an edge: there it does not move.
    function selectOn() {
        const place = pointer.point.scenePosition;
        const y = flickable.mapFromItem(null, place.x, place.y).y;
        if (y < 0 || y > flickable.height) {
            const there = input.mapFromItem(null, place.x, place.y);
            input.moveCursorSelection(input.positionAt(there.x, there.y), TextEdit.SelectCharacters);
        }
    }

    function move(forward) {
        input.nextItemInFocusChain(forward).forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason);
    }

    ContinuousRectangle {
        objectName: "surface"
        anchors.fill: parent
        radius: root.radius
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
            leftPadding: 2 * root.horizontalPadding
            rightPadding: 2 * root.horizontalPadding
            topPadding: 2 * root.verticalPadding
            bottomPadding: 2 * root.verticalPadding
            focus: true
            activeFocusOnTab: true
            selectByMouse: true
            persistentSelection: true
            textFormat: TextEdit.PlainText
            wrapMode: TextEdit.Wrap
            color: "white"
            selectionColor: input.activeFocus ? Brand.purple : Brand.white(0.2)
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

            onTextChanged: typed.follow()
            onCursorRectangleChanged: root.reveal()

            Keys.onTabPressed: root.move(true)
            Keys.onBacktabPressed: root.move(false)
            Keys.onPressed: event => root.turnPageByKey(event)

            PointHandler {
                id: pointer
            }
        }

        ScrollThumb {
            flickable: flickable
        }
    }

    Timer {
        interval: 40
        repeat: true
        running: pointer.active

        onTriggered: root.selectOn()
    }

    TypedText {
        id: typed

        document: input.textDocument

        onSaid: root.draw()
        onEdited: root.edited()
    }

    KeyboardFocus {
        id: keyboard

        item: input
    }

    FocusRing {
        objectName: "ring"
        visible: keyboard.isShown
        radius: root.radius + 2
    }

    HoverHandler {
        cursorShape: Qt.IBeamCursor
    }
}
