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

    property Item item: null

    onShownChanged: root.build()
    Component.onCompleted: root.build()

    function build() {
        if (!root.shown || root.item) {
            return;
        }
        const component = Qt.createComponent(root.source);
        root.item = component.createObject(root, root.properties);
        root.item.anchors.fill = root;
        root.item.focus = true;
    }
}
