pragma ComponentBehavior: Bound

import QtQuick

import Quib.Brand
import Quib.Views

/*!
    A field for one line of text.
*/
FocusScope {
    id: root

    property alias text: input.text
    property alias readOnly: input.readOnly
    property string placeholder
    property real size: 12

    readonly property bool isEditing: input.activeFocus

    signal accepted
    signal edited

    implicitWidth: 160
    implicitHeight: input.implicitHeight / 2 + 12

    function selectAll() {
        input.selectAll();
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
        color: Brand.muted2
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    // The text is cut off at the padding, but a press in the padding is a press on the text.
    Item {
        id: opening

        x: 9
        width: root.width - 18
        height: root.height
        clip: true
        containmentMask: Item {
            parent: opening
            x: -9
            width: root.width
            height: root.height
        }

        TextInput {
            id: input

            objectName: "input"
            width: opening.width * 2
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

            containmentMask: Item {
                parent: input
                x: -18
                width: root.width * 2
                height: root.height * 2
            }

            cursorDelegate: FieldCursor {
                isShown: input.cursorVisible
            }

            onAccepted: root.accepted()
            onTextEdited: root.edited()
        }
    }

    HoverHandler {
        cursorShape: Qt.IBeamCursor
    }
}
