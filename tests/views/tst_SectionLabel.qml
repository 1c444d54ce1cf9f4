import QtQuick
import QtTest

import Quib.Brand
import Quib.Views

TestCase {
    id: testCase

    name: "SectionLabel"

    Component {
        id: label

        SectionLabel { text: "Today" }
    }

    function test_isWrittenInCapitals() {
        const today = createTemporaryObject(label, testCase);
        compare(today.children[0].text, "TODAY");
        compare(today.text, "Today");
    }

    function test_isSmallSemiboldSpacedAndGrey() {
        const font = createTemporaryObject(label, testCase).children[0].font;
        compare(font.pixelSize, 19); // Laid out at twice its size.
        compare(font.weight, Font.DemiBold);
        fuzzyCompare(font.letterSpacing, 1.6, 0.01);
        compare(createTemporaryObject(label, testCase).children[0].color, Brand.muted2);
    }
}
