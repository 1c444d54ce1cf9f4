import QtQuick

/*!
    One of a SidewaysList. What has the focus in it shows the ring after focusBy().
*/
FocusScope {
    id: root

    property bool isStop: ListView.isCurrentItem

    function focusBy(reason) {
        root.forceActiveFocus(reason);
    }
}
