import QtQuick
import QtTest

import Quib.Controls

TestCase {
    id: testCase

    name: "QuibToolTip"
    width: 760
    height: 330
    visible: true
    when: windowShown

    Component {
        id: corner

        Item {
            property alias tip: tip

            width: 20
            height: 20

            QuibToolTip {
                id: tip

                delay: 0
                text: "Edit shortcuts (opens shortcuts.json)"
            }
        }
    }

    function test_neverLeavesTheCard_data() {
        return [{ tag: "top left", x: 34, y: 4 }, { tag: "top right", x: 706, y: 4 }, { tag: "bottom left", x: 34, y: 266 },
                { tag: "bottom right", x: 706, y: 266 }];
    }

    function test_neverLeavesTheCard(row) {
        const tip = createTemporaryObject(corner, testCase, { x: row.x, y: row.y }).tip;
        tip.open();
        tryVerify(() => tip.opened);
        const place = tip.contentItem.mapToItem(testCase, -tip.leftPadding, -tip.topPadding);
        verify(place.x >= 38 + 8 && place.x + tip.width <= 722 - 8, place.x); // The body of the card, and a gap.
        verify(place.y >= 0 && place.y + tip.height <= 290 - 8, place.y);
    }

    function test_aLongTextIsElided() {
        const tip = createTemporaryObject(corner, testCase, { x: 300 }).tip;
        tip.text = "https://example.com/".repeat(100);
        tip.open();
        tryVerify(() => tip.opened);
        compare(tip.width, 300);
        verify(tip.contentItem.children[0].truncated);
    }
}
