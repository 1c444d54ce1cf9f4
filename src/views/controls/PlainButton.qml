import QtQuick
import QtQuick.Templates as T

import Quib.Views

/*!
    A button that draws nothing of its own but a ring when the keyboard has come to it. A click leaves
    the focus where it is, so that a half-typed field goes on.
*/
T.AbstractButton {
    id: root

    property string help
    property real ringRadius: height / 2

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    opacity: root.down ? 0.75 : 1
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    Accessible.role: Accessible.Button
    Accessible.description: root.help

    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    FocusRing {
        visible: root.visualFocus
        radius: root.ringRadius
    }
}
