import QtQuick
import QtTest

import Quib.Brand
import Quib.Controls

TestCase {
    id: testCase

    name: "SegmentedPicker"
    width: 300
    height: 100
    visible: true
    when: windowShown

    Component {
        id: picker

        SegmentedPicker {
            name: "Period"
            titles: ["This week", "This month", "This year"]
            selected: 1
        }
    }

    SignalSpy {
        id: choices

        signalName: "chosen"
    }

    function init() {
        choices.clear();
    }

    function segments(made) {
        return Array.from(findChild(made, "segments").children).filter(child => child.objectName === "segment");
    }

    function make(properties) {
        const made = createTemporaryObject(picker, testCase, properties ?? {});
        choices.target = made;
        tryVerify(() => segments(made)[2]?.x > 0); // Laid out.
        return made;
    }

    function test_segmentsShareTheWidth() {
        const made = make({ width: 170 });
        const surface = findChild(made, "surface");
        compare(Qt.size(surface.width, surface.height), Qt.size(170, made.implicitHeight));
        compare(surface.radius, made.height / 2);
        compare(surface.color, Brand.white(0.07));
        compare(segments(made).map(segment => segment.width), [166 / 3, 166 / 3, 166 / 3]);
        compare(segments(made)[0].mapToItem(made, 0, 0), Qt.point(2, 2));
        compare(segments(made)[0].height, made.height - 4);
    }

    function test_itsOwnWidthHoldsShortTitles() {
        const made = make();
        compare(made.width, 3 * 85);
        segments(made).forEach(segment => verify(!findChild(segment, "title").children[0].truncated));
    }

    function test_aTitleTooLongIsElided() {
        const made = make({ width: 90 });
        compare(segments(made).length, 3);
        verify(findChild(segments(made)[1], "title").children[0].truncated);
    }

    function test_theSelectedSegmentIsLighter() {
        const made = make();
        const looks = segments(made).map(segment => [findChild(segment, "capsule").color, findChild(segment, "title").color]);
        compare(looks[0], [Qt.color("transparent"), Brand.muted]);
        compare(looks[1], [Brand.white(0.16), Qt.color("white")]);
        compare(looks[2], looks[0]);
    }

    function test_thePointerLightsATitle() {
        const first = segments(make())[0];
        mouseMove(first, 5, 5);
        tryCompare(findChild(first, "title"), "color", Qt.color("white"));
    }

    function test_aClickChooses() {
        const made = make();
        mouseClick(segments(made)[2]);
        compare(choices.count, 1);
        compare(choices.signalArguments[0][0], 2);
        compare(made.selected, 1); // Whoever owns the choice says so.
        verify(!made.activeFocus); // A half-typed field goes on.
    }

    function test_aClickOnTheSelectedSegmentChoosesNothing() {
        mouseClick(segments(make())[1]);
        compare(choices.count, 0);
    }

    function test_arrowsChooseTheNeighbours_data() {
        return [
            { tag: "left", key: Qt.Key_Left, chosen: 0 },
            { tag: "up", key: Qt.Key_Up, chosen: 0 },
            { tag: "right", key: Qt.Key_Right, chosen: 2 },
            { tag: "down", key: Qt.Key_Down, chosen: 2 }
        ];
    }

    function test_arrowsChooseTheNeighbours(row) {
        make().forceActiveFocus(Qt.TabFocusReason);
        keyClick(row.key);
        compare(choices.count, 1);
        compare(choices.signalArguments[0][0], row.chosen);
    }

    function test_arrowsStopAtTheEnds() {
        make({ selected: 0 }).forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Left);
        make({ selected: 2 }).forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Right);
        compare(choices.count, 0);
    }

    function test_theKeyboardComesToTheWhole() {
        const made = make();
        const ring = findChild(made, "ring");
        verify(!ring.visible);
        keyClick(Qt.Key_Tab);
        verify(made.activeFocus);
        verify(ring.visible);
        keyClick(Qt.Key_Tab);
        segments(made).forEach(segment => verify(!segment.activeFocus));
    }
}
