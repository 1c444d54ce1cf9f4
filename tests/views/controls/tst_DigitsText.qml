import QtQuick
import QtTest

import Quib.Controls

TestCase {
    id: testCase

    name: "DigitsText"
    width: 200
    height: 100
    visible: true
    when: windowShown

    Component {
        id: digits

        DigitsText {
            text: "1:11:11"
            size: 11.5
        }
    }

    function cells(made) {
        return Array.from(made.children[0].children).filter(child => child.index !== undefined);
    }

    function test_narrowDigitsTakeAsMuchRoomAsWideOnes() {
        const narrow = createTemporaryObject(digits, testCase);
        const wide = createTemporaryObject(digits, testCase, { text: "0:59:59" });
        compare(narrow.implicitWidth, wide.implicitWidth);
    }

    function test_otherCharactersKeepTheirWidth() {
        const made = createTemporaryObject(digits, testCase);
        verify(cells(made)[1].width < cells(made)[0].width);
    }

    function test_halfSizesLieBetweenWholeOnes() {
        const widths = [11, 11.5, 12].map(size => createTemporaryObject(digits, testCase, { size: size }).implicitWidth);
        verify(widths[0] < widths[1]);
        verify(widths[1] < widths[2]);
    }

    function test_whenOneDigitTurnsTheOthersAreNotLaidOutAnew() {
        const made = createTemporaryObject(digits, testCase);
        const before = cells(made);
        let turned = 0;
        before.forEach(cell => cell.children[0].textChanged.connect(() => ++turned));
        made.text = "1:11:12";
        compare(turned, 1);
        compare(cells(made), before);
    }

    function test_textsMayGrow() {
        const made = createTemporaryObject(digits, testCase, { text: "59:59" });
        const before = made.implicitWidth;
        made.text = "1:00:00";
        compare(cells(made).length, 7);
        tryVerify(() => made.implicitWidth > before);
    }

    function test_markupIsShownAsItStands() {
        const made = createTemporaryObject(digits, testCase);
        cells(made).forEach(cell => compare(cell.children[0].textFormat, Text.PlainText));
    }
}
