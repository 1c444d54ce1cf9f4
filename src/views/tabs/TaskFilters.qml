pragma ComponentBehavior: Bound

import QtQuick

import Quib.Brand
import Quib.Views

/*!
    The row of chips above the tasks: all of them, those of one client, and a button that clears the
    done ones.
*/
Item {
    id: root

    required property Store store
    required property uuid filter
    required property string clearDoneTitle

    signal chosen(client: uuid)

    implicitHeight: allChip.implicitHeight

    FilterChip {
        id: allChip

        objectName: "allChip"
        title: "All"
        selected: root.filter === NoClient.id

        onClicked: root.chosen(NoClient.id)
    }

    ListView {
        id: chips

        objectName: "chips"
        anchors.left: allChip.right
        anchors.leftMargin: 4
        anchors.right: clearDone.visible ? clearDone.left : parent.right
        anchors.rightMargin: clearDone.visible ? 8 : 0
        height: parent.height
        orientation: ListView.Horizontal
        spacing: 4
        clip: true
        boundsBehavior: Flickable.StopAtBounds

        model: ClientListModel {
            store: root.store
            selection: ClientListModel.WithTasks
        }

        delegate: FilterChip {
            required property int index
            required property uuid clientID
            required property string name

            title: name
            selected: root.filter === clientID

            onClicked: root.chosen(clientID)
            onActiveFocusChanged: if (activeFocus) chips.positionViewAtIndex(index, ListView.Contain)
        }

        SidewaysWheel {
            flickable: chips
        }
    }

    PlainButton {
        id: clearDone

        objectName: "clearDone"
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        visible: root.clearDoneTitle !== ""
        Accessible.name: root.clearDoneTitle

        onClicked: root.store.clearDoneTasks()

        contentItem: QuibText {
            text: root.clearDoneTitle
            size: 10.5
            color: Brand.muted2
            Accessible.ignored: true
        }
    }
}
