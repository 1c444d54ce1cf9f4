pragma ComponentBehavior: Bound

import QtQuick

/*!
    Tells that a list goes on where it is cut: there its rows fade into the surface that it lies on, and
    one that scrolls up and down has a thumb. Stands beside the list, in front of it.
*/
Item {
    id: root

    required property Flickable flickable
    property color surface: "black"
    property bool hasThumb: !root.isSideways
    property real thumbMargin: 2 // Between the list and the thumb.

    // A list that is cut between two rows dims the last one: so it is longer than most rows are high.
    readonly property real fadeSize: root.isSideways ? 24 : Math.min(36, root.extent / 4)
    readonly property bool isSideways: root.flickable.flickableDirection === Flickable.HorizontalFlick
    readonly property real position: root.isSideways ? root.flickable.contentX : root.flickable.contentY
    readonly property real extent: root.isSideways ? root.flickable.width : root.flickable.height
    readonly property real start: root.isSideways ? root.flickable.originX - root.flickable.leftMargin
                                                  : root.flickable.originY - root.flickable.topMargin
    readonly property real end: Math.max(root.start, root.isSideways
        ? root.flickable.originX + root.flickable.contentWidth + root.flickable.rightMargin - root.extent
        : root.flickable.originY + root.flickable.contentHeight + root.flickable.bottomMargin - root.extent)

    readonly property bool isCut: root.extent > 0 && root.end > root.start

    property Item marks: null

    parent: root.flickable.parent
    x: root.flickable.x
    y: root.flickable.y
    z: 1
    width: root.flickable.width
    height: root.flickable.height
    visible: root.flickable.visible

    onIsCutChanged: root.build()
    Component.onCompleted: root.build()

    // Of a list or a grid.
    function revealRow(row) {
        const list = root.flickable as ItemView;
        if (root.extent < 48) {
            return; // It has not found its place.
        }
        list.positionViewAtIndex(row, ItemView.Contain);
        list.forceLayout(); // It may have been too far away to be there.
        const item = list.itemAtIndex(row);
        if (item) {
            root.reveal(item);
        }
    }

    // What the keyboard has come to is not to be faded.
    function reveal(item) {
        const first = root.isSideways ? item.x : item.y;
        const size = root.isSideways ? item.width : item.height;
        const wanted = Math.max(first + size + root.fadeSize - root.extent,
                                Math.min(root.position, first - root.fadeSize));
        const position = Math.max(root.start, Math.min(wanted, root.end));
        if (root.isSideways) {
            root.flickable.contentX = position;
        } else {
            root.flickable.contentY = position;
        }
    }

    // Most lists never meet more than they have room for.
    function build() {
        if (root.isCut && !root.marks) {
            root.marks = allMarks.createObject(root);
        }
    }

    Component {
        id: allMarks

        Item {
            anchors.fill: parent

            Fade {
                objectName: "moreBefore"
                x: root.isSideways ? -1 : 0
                y: root.isSideways ? 0 : -1
                hidden: root.position - root.start
                isAtStart: true
            }

            Fade {
                objectName: "moreAfter"
                x: root.isSideways ? root.width + 1 - width : 0
                y: root.isSideways ? 0 : root.height + 1 - height
                hidden: root.end - root.position
                isAtStart: false
            }

            Item {
                id: rail

                objectName: "rail"
                anchors.fill: parent
                visible: root.hasThumb

                ScrollThumb {
                    objectName: "thumb"
                    parent: rail
                    x: rail.width + root.thumbMargin
                    flickable: root.flickable
                }
            }
        }
    }

    // Begins a point outside the list: between pixels a line of the rows would be left.
    component Fade: Rectangle {
        id: fade

        required property real hidden // How much of the list lies beyond.
        required property bool isAtStart

        width: root.isSideways ? root.fadeSize : root.width
        height: root.isSideways ? root.height : root.fadeSize
        visible: opacity > 0
        opacity: Math.max(0, Math.min(fade.hidden * 2 / root.fadeSize, 1))

        gradient: Gradient {
            orientation: root.isSideways ? Gradient.Horizontal : Gradient.Vertical

            GradientStop {
                position: fade.isAtStart ? 0 : 1
                color: root.surface
            }
            GradientStop {
                position: fade.isAtStart ? 0.1 : 0.9
                color: root.surface
            }
            GradientStop {
                position: fade.isAtStart ? 1 : 0
                color: Qt.alpha(root.surface, 0)
            }
        }
    }
}
