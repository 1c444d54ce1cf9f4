import QtQuick
import QtTest

import Quib.Brand
import Quib.Controls

TestCase {
    id: testCase

    name: "IconButton"
    width: 200
    height: 100
    visible: true
    when: windowShown

    Component {
        id: button

        IconButton {
            symbol: "xmark"
            size: 12
            tint: Brand.glow
            help: "Remove"
        }
    }

    SignalSpy {
        id: clicks

        signalName: "clicked"
    }

    function init() {
        mouseMove(testCase, 190, 90);
    }

    function test_ofTwelveItIsTwentySixWithTwelveOfSymbol() {
        const icon = createTemporaryObject(button, testCase);
        const symbol = findChild(icon, "symbol");
        compare(icon.width, 26);
        compare(icon.height, 26);
        compare(symbol.width, 12);
        compare(symbol.height, 12);
        compare(symbol.x, 7);
        compare(symbol.y, 7);
    }

    function test_frameGrowsWithTheSize() {
        const icon = createTemporaryObject(button, testCase, { size: 9 });
        compare(icon.implicitWidth, 23);
        compare(icon.implicitHeight, 23);
    }

    function test_lightsUpUnderThePointerAtOnce() {
        const icon = createTemporaryObject(button, testCase);
        const circle = findChild(icon, "circle");
        compare(circle.color.a, 0);
        mouseMove(icon);
        compare(circle.color, Brand.white(0.12));
        compare(circle.radius, 13);
        compare(findChild(icon, "symbol").color, "#ffffff");
        mouseMove(testCase, 190, 90);
        compare(circle.color.a, 0);
        compare(findChild(icon, "symbol").color, Brand.glow);
    }

    function test_saysThatItWasClicked() {
        clicks.target = createTemporaryObject(button, testCase);
        mouseClick(clicks.target);
        compare(clicks.count, 1);
    }
}
