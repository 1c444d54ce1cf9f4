import QtQuick

import Quib.Notch
import Quib.Views

/*!
    The place of one tab in the open card.
*/
LazyView {
    id: root

    required property NotchModel model
    required property int tab

    anchors.fill: parent
    visible: root.model.tab === root.tab
    shown: root.model.isExpanded && root.model.tab === root.tab
    focus: root.model.tab === root.tab
}
