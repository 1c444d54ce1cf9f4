import QtQuick
import QtQuick.Templates as T

import Quib.Brand
import Quib.Controls
import Quib.Shapes

/*!
    A menu below what opens it, its parent, inside the window. The model has the roles title, symbol,
    checked and separator, or is an array of objects with such members; what is left out is empty or false.
*/
T.Popup {
    id: root

    property var model
    property int startIndex: -1 // Highlighted and in sight when the menu opens.

    property Item focusedBefore: null
    property bool hadRing: false // Choosing leaves the ring where it was.

    readonly property Connections opener: Connections {
        target: root.parent

        function onVisibleChanged() {
            root.close();
        }
    }

    signal activated(int index)

    y: parent.height + 4
    width: Math.max(200, parent.width)
    implicitHeight: Math.min(240, implicitContentHeight + topPadding + bottomPadding)
    padding: 4
    topMargin: PopupRoom.top
    leftMargin: PopupRoom.left
    rightMargin: PopupRoom.right
    bottomMargin: PopupRoom.bottom
    focus: true
    modal: true
    dim: false

    background: ContinuousRectangle {
        objectName: "popup"
        radius: 10
        color: Brand.popup
        strokeColor: Brand.white(0.12)
    }

    contentItem: MenuList {
        objectName: "menuList"
        focus: true
        model: root.model
        Accessible.role: Accessible.PopupMenu

        onActivated: index => root.choose(index)
    }

    onAboutToShow: root.begin()
    onClosed: root.end()

    function begin() {
        root.focusedBefore = FocusedItem.in(root.parent.Window.window);
        root.hadRing = (root.focusedBefore as PlainButton)?.visualFocus ?? false;
        (root.contentItem as MenuList).begin(root.startIndex);
        OpenMenu.menu = root;
    }

    function end() {
        root.giveBack(root.hadRing ? Qt.TabFocusReason : Qt.PopupFocusReason);
        OpenMenu.menu = null;
    }

    function giveBack(reason) {
        root.focusedBefore?.forceActiveFocus(reason);
        const button = root.focusedBefore as PlainButton;
        if (button) {
            button.focusReason = reason; // The popup may have given it the focus without.
        }
    }

    // Closed first: what is chosen may open something of its own.
    function choose(index) {
        root.close();
        root.activated(index);
    }
}
