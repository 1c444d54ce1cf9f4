pragma ComponentBehavior: Bound

import QtQuick

import Quib.Brand
import Quib.Shapes

/*!
    A choice between a few, side by side in a capsule. The keyboard comes to the whole of it, and
    arrows choose. (No template: readers would not be told of a group.)
*/
Item {
    id: root

    required property list<string> titles
    required property int selected
    property string name

    signal chosen(int index)

    implicitWidth: 85 * root.titles.length
    implicitHeight: segments.implicitHeight + 4
    activeFocusOnTab: true
    Accessible.role: Accessible.Grouping
    Accessible.name: "%1: %2".arg(root.name).arg(root.titles[root.selected])

    Keys.onLeftPressed: root.choose(root.selected - 1)
    Keys.onUpPressed: root.choose(root.selected - 1)
    Keys.onRightPressed: root.choose(root.selected + 1)
    Keys.onDownPressed: root.choose(root.selected + 1)

    function choose(index) {
        if (index !== root.selected && index >= 0 && index < root.titles.length) {
            root.chosen(index);
        }
    }

    ContinuousRectangle {
        objectName: "surface"
        anchors.fill: parent
        radius: height / 2
        color: Brand.white(0.07)
    }

    Row {
        id: segments

        objectName: "segments"
        x: 2
        y: 2

        Repeater {
            model: root.titles.length

            Segment {
                required property int index

                width: (root.width - 4) / root.titles.length
                title: root.titles[index]
                selected: root.selected === index

                onClicked: root.choose(index)
            }
        }
    }

    FocusRing {
        objectName: "ring"
        visible: root.activeFocus
    }

    component Segment: PlainButton {
        id: segment

        required property string title
        required property bool selected

        objectName: "segment"
        horizontalPadding: 8
        verticalPadding: 3
        focusPolicy: Qt.NoFocus
        role: Accessible.RadioButton
        isCheckable: true
        isChecked: segment.selected
        Accessible.name: segment.title

        background: ContinuousRectangle {
            objectName: "capsule"
            radius: height / 2
            color: segment.selected ? Brand.white(0.16) : "transparent"
        }

        contentItem: QuibText {
            objectName: "title"
            text: segment.title
            size: 11
            weight: Font.Medium
            color: segment.selected || segment.hovered ? "white" : Brand.muted
            horizontalAlignment: Text.AlignHCenter
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
}
