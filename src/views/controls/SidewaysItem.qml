import QtQuick

/*!
    One of a SidewaysList, half way up. What has the focus in it shows the ring after focusBy().
*/
FocusScope {
    id: root

    property bool isStop: ListView.isCurrentItem

    // The lists of Qt 6.8 put everything at the top, whatever its y or its anchors say.
    transform: Translate {
        y: ((root.ListView.view?.height ?? root.height) - root.height) / 2
    }

    function focusBy(reason) {
        root.forceActiveFocus(reason);
    }
}
