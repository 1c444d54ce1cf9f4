import QtQuick

import Quib.Brand
import Quib.Controls
import Quib.Notch
import Quib.Shapes
import Quib.Symbols

/*!
    Selects one tab.
*/
PlainButton {
    id: root

    required property NotchModel model
    required property int tab

    readonly property bool selected: root.model.tab === root.tab

    implicitWidth: 30
    implicitHeight: 24
    focusPolicy: root.selected || activeFocus ? Qt.TabFocus : Qt.NoFocus
    help: Tabs.title(root.tab)
    role: Accessible.PageTab
    Accessible.name: root.help
    Accessible.description: ""
    Accessible.selectable: true
    Accessible.selected: root.selected

    onClicked: root.model.tab = root.tab

    background: ContinuousRectangle {
        objectName: "capsule"
        radius: height / 2
        color: root.selected ? Brand.purple : "white"
        opacity: root.selected ? 0.55 : root.hovered ? 0.08 : 0
    }

    contentItem: Item {
        Symbol {
            objectName: "symbol"
            anchors.centerIn: parent
            name: Tabs.symbol(root.tab)
            size: 12
            weight: Font.DemiBold
            color: root.selected ? "white" : root.hovered ? Brand.white(0.85) : Brand.muted2
        }
    }
}
