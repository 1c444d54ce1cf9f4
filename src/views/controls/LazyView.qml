import QtQuick

/*!
    A view that is loaded and built when it is first shown, and then kept: nobody waits for what
    nobody looks at. Hidden it neither paints nor beats. It fills this item and has its focus.
*/
FocusScope {
    id: root

    required property bool shown
    required property url source
    /// What the view is made with, by name.
    required property var properties

    /// Whether it may come some frames late, so that what is around it moves at once and goes on while
    /// another thread reads what it is made of.
    property bool mayWait: false

    property Item item: null
    property Component reading: null

    onShownChanged: root.mayWait && !root.item ? frames.enabled = true : root.build()
    onMayWaitChanged: if (!root.mayWait) root.build()
    Component.onCompleted: root.build()

    Connections {
        id: frames

        target: root.Window.window
        enabled: false

        function onFrameSwapped() {
            if (!root.reading) {
                root.reading = Qt.createComponent(root.source, Component.Asynchronous, root);
            } else if (root.reading.status !== Component.Loading) {
                root.build();
            }
        }
    }

    function build() {
        frames.enabled = false;
        if (!root.shown || root.item) {
            return;
        }
        const component = Qt.createComponent(root.source);
        root.item = component.createObject(root, root.properties);
        root.item.anchors.fill = root;
        root.item.focus = true;
    }
}
