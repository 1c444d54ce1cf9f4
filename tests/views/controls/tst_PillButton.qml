import QtQuick
import QtTest

import Quib.Controls

TestCase {
    id: testCase

    name: "PillButton"
    width: 200
    height: 100
    visible: true
    when: windowShown

    Component {
        id: button

        PillButton { title: "Start" }
    }

    SignalSpy {
        id: clicks

        signalName: "clicked"
    }

    function init() {
        mouseMove(testCase, 190, 90);
    }

    function test_paddingSurroundsTheTitle() {
        const pill = createTemporaryObject(button, testCase);
        const title = findChild(pill, "title");
        compare(pill.implicitWidth, title.implicitWidth + 20);
        compare(pill.implicitHeight, title.implicitHeight + 10);
    }

    function test_withoutASymbolThereIsOnlyTheTitle() {
        const pill = createTemporaryObject(button, testCase);
        verify(!findChild(pill, "symbol").visible);
        compare(findChild(pill, "title").x, 0);
        compare(pill.leftPadding, 10);
    }

    function test_lightsUpUnderThePointerAtOnce() {
        const pill = createTemporaryObject(button, testCase);
        const capsule = findChild(pill, "capsule");
        compare(capsule.opacity, 0.85);
        mouseMove(pill);
        compare(capsule.opacity, 1.0);
        mouseMove(testCase, 190, 90);
        compare(capsule.opacity, 0.85);
    }

    function test_saysThatItWasClicked() {
        clicks.target = createTemporaryObject(button, testCase);
        clicks.clear();
        mouseClick(clicks.target);
        compare(clicks.count, 1);
    }

    function test_aDoubleClickIsOneClick() {
        clicks.target = createTemporaryObject(button, testCase);
        clicks.clear();
        mouseDoubleClickSequence(clicks.target);
        compare(clicks.count, 1);
        mouseClick(clicks.target);
        compare(clicks.count, 2);
    }
}
