pragma ComponentBehavior: Bound

import QtQuick

import Quib.Brand
import Quib.Views

/*!
    The rows of the totals. Where they do not fit, the keyboard comes to them to scroll.
*/
Item {
    id: root

    required property TotalListModel totals

    ListView {
        id: list

        readonly property bool overflows: list.contentHeight > list.height

        objectName: "list"
        anchors.fill: parent
        clip: true
        spacing: 8
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: false
        activeFocusOnTab: list.overflows
        model: root.totals
        Accessible.role: Accessible.List
        Accessible.name: "Time per client"

        Keys.onUpPressed: list.scrollTo(list.contentY - 30)
        Keys.onDownPressed: list.scrollTo(list.contentY + 30)
        Keys.onPressed: event => {
            event.accepted = true;
            switch (event.key) {
            case Qt.Key_PageUp: return list.scrollTo(list.contentY - list.height);
            case Qt.Key_PageDown: return list.scrollTo(list.contentY + list.height);
            case Qt.Key_Home: return list.positionViewAtBeginning();
            case Qt.Key_End: return list.positionViewAtEnd();
            }
            event.accepted = false;
        }

        function scrollTo(y) {
            list.contentY = y;
            list.returnToBounds();
        }

        delegate: TotalRow {
            required property string status

            width: list.width
            color: Brand.color(status)
        }

        ScrollThumb {
            flickable: list
        }

        QuibText {
            objectName: "nothing"
            visible: list.count === 0
            text: "No time logged yet."
            size: 11.5
            color: Brand.muted2
        }
    }

    FocusRing {
        objectName: "ring"
        anchors.margins: -4
        visible: list.activeFocus
        radius: 6
    }
}
