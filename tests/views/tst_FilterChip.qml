import QtQuick
import QtTest

import Quib.Brand
import Quib.Views

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

    function test_paddingSurroundsTheTitle() {
        const made = createTemporaryObject(chip, testCase);
        const title = findChild(made, "title");
        compare(made.implicitWidth, title.implicitWidth + 18);
        compare(made.implicitHeight, title.implicitHeight + 6);
        compare(title.size, 10.5);
        compare(title.weight, Font.Medium);
        compare(findChild(made, "capsule").radius, made.height / 2);
    }

    function test_selectedItIsWhiteOnPurple() {
        const made = createTemporaryObject(chip, testCase, { selected: true });
        compare(findChild(made, "title").color, "#ffffff");
        compare(findChild(made, "capsule").color, Brand.purple);
        compare(findChild(made, "capsule").opacity, 0.6);
    }

    function test_notSelectedItIsGreyOnAVeil() {
        const made = createTemporaryObject(chip, testCase);
        compare(findChild(made, "title").color, Brand.muted);
        compare(findChild(made, "capsule").color, "#ffffff");
        compare(findChild(made, "capsule").opacity, 0.06);
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
