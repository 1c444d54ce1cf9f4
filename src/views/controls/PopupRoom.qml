pragma Singleton

import QtQuick

/*!
    How far popups stay from the edges of the window. The body of the card, of which nothing is seen
    outside, begins 38 points from the sides, at the top of the window, and ends 40 points above its
    bottom in round corners: so there is a gap to each edge.
*/
QtObject {
    property real left: 46
    property real right: 46
    property real top: 4
    property real bottom: 48
}
