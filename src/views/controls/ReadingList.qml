import QtQuick

/*!
    A list of rows that are only read. Where they do not fit, the keyboard comes to it to scroll.
*/
ListView {
    id: root

    property color surface: "black" // What the list lies on.

    readonly property bool overflows: root.contentHeight > root.height

    function scrollTo(y) {
        root.contentY = y;
        root.returnToBounds();
    }

    clip: true
    boundsBehavior: Flickable.StopAtBounds
    keyNavigationEnabled: false
    activeFocusOnTab: root.overflows
    Accessible.role: Accessible.List

    Keys.onUpPressed: root.scrollTo(root.contentY - 30)
    Keys.onDownPressed: root.scrollTo(root.contentY + 30)
    Keys.onPressed: event => {
        event.accepted = true;
        switch (event.key) {
        case Qt.Key_PageUp: return root.scrollTo(root.contentY - root.height);
        case Qt.Key_PageDown: return root.scrollTo(root.contentY + root.height);
        case Qt.Key_Home: return root.positionViewAtBeginning();
        case Qt.Key_End: return root.positionViewAtEnd();
        }
        event.accepted = false;
    }

    ScrollEdges {
        flickable: root
        surface: root.surface
    }

    // Beside the list, which cuts off what stands out of it.
    FocusRing {
        objectName: "ring"
        parent: root.parent
        anchors.fill: root
        anchors.margins: -4
        visible: root.activeFocus && root.visible && root.overflows
        radius: 6
    }
}
