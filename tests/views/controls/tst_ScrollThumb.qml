import QtQuick
import QtTest

import Quib.Controls

TestCase {
    id: testCase

    name: "ScrollThumb"
    width: 200
    height: 200
    visible: true
    when: windowShown

    Component {
        id: list

        ListView {
            id: view

            property alias thumb: thumb

            width: 100
            height: 100
            model: 20

            delegate: Item { height: 20 }

            ScrollThumb {
                id: thumb

                flickable: view
            }
        }
    }

    function init() {
        mouseMove(testCase, 190, 190);
    }

    function test_showsWhileTheListIsScrolledAndThenFades() {
        const view = createTemporaryObject(list, testCase);
        verify(!view.thumb.visible);
        view.flick(0, -1000);
        tryVerify(() => view.thumb.visible && view.thumb.opacity > 0.5);
        tryVerify(() => !view.thumb.visible);
    }

    function test_showsWhileThePointerIsOverTheList() {
        const view = createTemporaryObject(list, testCase);
        mouseMove(view, 50, 50);
        tryVerify(() => view.thumb.opacity === 1);
        mouseMove(testCase, 190, 190);
        tryVerify(() => !view.thumb.visible);
    }

    function test_ofALongListItEndsWithIt() {
        const view = createTemporaryObject(list, testCase, { model: 1000 });
        view.positionViewAtEnd();
        compare(view.thumb.height, 16);
        compare(view.thumb.y + view.thumb.height, 100);
    }

    function test_standsWhereTheListIs() {
        const view = createTemporaryObject(list, testCase);
        compare(view.thumb.height, 25);
        compare(view.thumb.y, 0);
        view.contentY = 300;
        compare(view.thumb.y, 75);
        compare(view.thumb.x, 100 - 4 - 2);
    }

    function test_aListThatFitsHasNone() {
        const view = createTemporaryObject(list, testCase, { model: 3 });
        view.thumb.opacity = 1;
        verify(!view.thumb.visible);
    }
}
