import QtQuick

import Quib.Brand
import Quib.Views

PlainButton {
    id: root

    property string title
    property bool selected

    horizontalPadding: 9
    verticalPadding: 3
    Accessible.name: root.title

    background: ContinuousRectangle {
        radius: height / 2
        color: root.selected ? Brand.purple : Brand.white(0.06)
        opacity: root.selected ? 0.6 : 1
    }

    contentItem: QuibText {
        text: root.title
        size: 10.5
        weight: Font.Medium
        color: root.selected ? "white" : Brand.muted
    }
}
