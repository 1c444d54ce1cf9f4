import QtQuick

/*!
    Lets the wheel move what scrolls sideways.
*/
WheelHandler {
    id: root

    required property Flickable flickable

    target: null

    onWheel: event => root.flickable.flick(8 * (event.angleDelta.y + event.angleDelta.x), 0)
}
