import QtQuick

import Quib.Controls
import Quib.Notch
import Quib.Shapes

/*!
    The place of one tab in the open card.
*/
LazyView {
    id: root

    required property NotchModel model
    required property int tab

    readonly property bool isSelected: root.model.tab === root.tab

    anchors.fill: parent
    visible: root.isSelected
    shown: root.model.isExpanded && root.isSelected
    focus: root.isSelected

    // Not at once when the card closes: it opens with this tab again.
    onVisibleChanged: if (!root.isSelected) Unseen.letGo(root)
}
