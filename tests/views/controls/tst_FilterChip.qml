import QtQuick
import QtTest

import Quib.Controls

TestCase {
    id: testCase

    name: "FilterChip"
    width: 300
    height: 100
    visible: true
    when: windowShown

    Component {
        id: chip

        FilterChip { title: "All" }
    }

    SignalSpy {
        id: clicks

        signalName: "clicked"
    }

    function test_aLongTitleIsElided() {
        const made = createTemporaryObject(chip, testCase, { title: "A client with a very long name indeed" });
        compare(made.width, 160);
        verify(findChild(made, "title").children[0].truncated);
    }

    function test_theWholeChipIsAButton() {
        clicks.target = createTemporaryObject(chip, testCase);
        mouseClick(clicks.target, 2, clicks.target.height / 2);
        compare(clicks.count, 1);
        verify(!clicks.target.selected); // Whoever owns the choice says so.
    }
}
