import QtQuick
import QtTest

import Quib.Views

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

    function test_showsWhileTheListIsScrolledAndThenFades() {
        const view = createTemporaryObject(list, testCase);
        verify(!view.thumb.visible);
        mouseWheel(view, 50, 50, 0, -120);
        tryVerify(() => view.thumb.visible && view.thumb.opacity > 0.5);
        tryVerify(() => !view.thumb.visible);
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
