import QtQuick

/*!
    A view that is built when it is first shown and then kept. Hidden it neither paints nor beats.
    (A Loader of Qt 6.4 cannot make a component with bound ids.)
*/
FocusScope {
    id: root

    required property bool shown
    required property Component view

    property Item item: null

    onShownChanged: root.build()
    Component.onCompleted: root.build()

    function build() {
        if (root.shown && !root.item) {
            root.item = root.view.createObject(root);
        }
    }
}
