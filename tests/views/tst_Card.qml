import QtQuick
import QtQuick.Layouts
import QtTest

import Quib.Brand
import Quib.Views

TestCase {
    id: testCase

    name: "Card"
    width: 400
    height: 200
    visible: true
    when: windowShown

    Component {
        id: inLayout

        ColumnLayout {
            property alias card: card
            property alias content: content

            width: 300

            Card {
                id: card

                padding: 14

                Item {
                    id: content

                    width: implicitWidth
                    height: implicitHeight
                    implicitWidth: 40
                    implicitHeight: 20
                }
            }
        }
    }

    function test_shortContentStillSpansTheWidthFromTheTopLeftCorner() {
        const layout = createTemporaryObject(inLayout, testCase);
        waitForRendering(testCase);
        compare(layout.card.width, 300);
        const place = layout.content.mapToItem(layout.card, 0, 0);
        compare(place.x, 14);
        compare(place.y, 14);
        compare(layout.content.width, 40);
    }

    function test_paddingSurroundsTheContentOnAllFourEdges() {
        const card = createTemporaryObject(inLayout, testCase).card;
        compare(card.implicitHeight, 20 + 2 * 14);
        compare(card.implicitWidth, 40 + 2 * 14);
        const inside = findChild(card, "inside");
        compare(inside.width, card.width - 28);
        compare(inside.height, card.height - 28);
    }

    function test_followsItsContent() {
        const layout = createTemporaryObject(inLayout, testCase);
        layout.content.implicitHeight = 50;
        compare(layout.card.implicitHeight, 78);
    }

    function test_twoInARowShareTheWidth() {
        const row = createTemporaryQmlObject("import QtQuick.Layouts; import Quib.Views; RowLayout { width: 308; spacing: 8; Card { } Card { } }", testCase);
        waitForRendering(testCase);
        compare(row.children[0].width, 150);
        compare(row.children[1].width, 150);
    }
}
