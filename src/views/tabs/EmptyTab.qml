import QtQuick

import Quib.Notch
import Quib.Views

/*!
    The frame of a tab, with its title.
*/
FocusScope {
    id: root

    required property int tab

    anchors.fill: parent

    SectionLabel {
        anchors.top: parent.top
        anchors.topMargin: 10
        text: Tabs.title(root.tab)
    }
}
