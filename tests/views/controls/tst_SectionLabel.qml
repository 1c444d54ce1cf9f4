import QtQuick
import QtTest

import Quib.Controls

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
}
