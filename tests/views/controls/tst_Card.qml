import QtQuick
import QtTest

import Quib.Controls

TestCase {
    id: testCase

    name: "Card"
    width: 400
    height: 200
    visible: true
    when: windowShown

    Component {
        id: inColumn

        Column {
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
        const column = createTemporaryObject(inColumn, testCase);
        waitForRendering(testCase);
        compare(column.card.width, 300);
        const place = column.content.mapToItem(column.card, 0, 0);
        compare(place.x, 14);
        compare(place.y, 14);
        compare(column.content.width, 40);
    }

    function test_paddingSurroundsTheContentOnAllFourEdges() {
        const card = createTemporaryObject(inColumn, testCase).card;
        compare(card.implicitHeight, 20 + 2 * 14);
        compare(card.implicitWidth, 40 + 2 * 14);
        const inside = findChild(card, "inside");
        compare(inside.width, card.width - 28);
        compare(inside.height, card.height - 28);
    }

    function test_followsItsContent() {
        const column = createTemporaryObject(inColumn, testCase);
        column.content.implicitHeight = 50;
        compare(column.card.implicitHeight, 78);
    }

    function test_widthThatIsSaid_holds() {
        const card = createTemporaryQmlObject("import Quib.Controls; Card { width: 150 }", testCase);
        compare(card.width, 150);
    }
}
