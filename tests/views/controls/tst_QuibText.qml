import QtQuick
import QtTest

import Quib.Controls

TestCase {
    id: testCase

    name: "QuibText"
    width: 400
    height: 100
    visible: true
    when: windowShown

    Component {
        id: label

        QuibText { text: "Track time" }
    }

    function laidOut(item) {
        return item.children[0];
    }

    function test_halfSizesLieBetweenWholeOnes() {
        const widths = [11, 11.5, 12].map(size => createTemporaryObject(label, testCase, { size: size }).implicitWidth);
        verify(widths[0] < widths[1]);
        verify(widths[1] < widths[2]);
    }

    function test_markupIsShownAsItStands() {
        const marked = createTemporaryObject(label, testCase, { text: "<b>Track time</b>" });
        const bare = createTemporaryObject(label, testCase);
        verify(marked.implicitWidth > bare.implicitWidth);
        compare(laidOut(marked).textFormat, Text.PlainText);
    }

    function test_trackingCountsOnceForEachLetter() {
        const plain = createTemporaryObject(label, testCase, { text: "TODAY" });
        const spaced = createTemporaryObject(label, testCase, { text: "TODAY", tracking: 0.8 });
        fuzzyCompare(spaced.implicitWidth, plain.implicitWidth + 5 * 0.8, 0.5);
    }

    function test_lettersKeepTheirCase() {
        compare(laidOut(createTemporaryObject(label, testCase, { text: "McIntyre" })).text, "McIntyre");
    }

    function test_lineBreaksBecomeSpaces() {
        const broken = createTemporaryObject(label, testCase, { text: "Track\ntime" });
        const line = createTemporaryObject(label, testCase);
        compare(broken.implicitHeight, line.implicitHeight);
        compare(broken.implicitWidth, line.implicitWidth);
    }

    function test_whereItElidesOnlyTheBeginningIsLaidOut() {
        const endless = createTemporaryObject(label, testCase, { text: "x".repeat(100000), elide: Text.ElideRight, width: 100 });
        compare(laidOut(endless).text.length, 301);
        verify(laidOut(endless).truncated);
    }

    function test_strikeoutIsDrawnThrough() {
        verify(laidOut(createTemporaryObject(label, testCase, { strikeout: true })).font.strikeout);
    }

    function test_textOfOtherDirectionStaysAtTheBeginningOfItsRow() {
        const hebrew = createTemporaryObject(label, testCase, { text: "שלום", width: 300 });
        compare(laidOut(hebrew).effectiveHorizontalAlignment, Text.AlignLeft);
    }

    function test_withAMinimumScaleItShrinksToFit() {
        const tight = createTemporaryObject(label, testCase, { size: 11, width: 20, minimumScale: 0.8 });
        const wide = createTemporaryObject(label, testCase, { size: 11, width: 500, minimumScale: 0.8 });
        const nearly = createTemporaryObject(label, testCase, { size: 11, width: wide.implicitWidth * 0.9, minimumScale: 0.8 });
        fuzzyCompare(laidOut(tight).scale, 0.4, 0.0001);
        compare(laidOut(wide).scale, 0.5);
        fuzzyCompare(laidOut(nearly).scale, 0.45, 0.0001);
        verify(!laidOut(nearly).truncated);
        compare(nearly.implicitHeight, wide.implicitHeight);
        fuzzyCompare(laidOut(nearly).y, wide.implicitHeight * 0.05, 0.0001);
    }

    function test_severalLinesWhereTheyAreAllowed() {
        const words = "one two three four five six seven eight nine ten";
        const line = createTemporaryObject(label, testCase, { text: words, width: 60, elide: Text.ElideRight });
        const lines = createTemporaryObject(label, testCase, { text: words, width: 60, elide: Text.ElideRight, maximumLines: 2 });
        compare(laidOut(line).lineCount, 1);
        compare(laidOut(lines).lineCount, 2);
        verify(laidOut(lines).truncated);
        compare(lines.implicitHeight, 2 * line.implicitHeight);
        lines.text = "one";
        compare(lines.implicitHeight, line.implicitHeight);
    }

    function test_aWordWithoutEndIsBroken() {
        const endless = createTemporaryObject(label, testCase, { text: "w".repeat(200), width: 60, elide: Text.ElideRight, maximumLines: 2 });
        verify(laidOut(endless).contentWidth <= 120);
        compare(laidOut(endless).lineCount, 2);
    }

    function test_baselineIsThatOfTheText() {
        const small = createTemporaryObject(label, testCase, { size: 10 });
        const large = createTemporaryObject(label, testCase, { size: 20 });
        verify(small.baselineOffset > 5 && small.baselineOffset < small.implicitHeight);
        fuzzyCompare(large.baselineOffset, 2 * small.baselineOffset, 1);
    }
}
