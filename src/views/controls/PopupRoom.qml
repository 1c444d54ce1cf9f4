pragma Singleton

import QtQuick

/*!
    How far popups stay from the edges of the window. The card, of which nothing is seen or clicked
    outside, ends 30 points from the sides and 40 from the bottom, and its corners are round.
*/
QtObject {
    property real left: 38
    property real right: 38
    property real bottom: 48
}
