import QtQuick

import Quib.Brand

/*!
    The small heading above a group, in capitals.
*/
QuibText {
    size: 9.5
    weight: Font.DemiBold
    tracking: 0.8
    capitals: true
    color: Brand.muted2
}
