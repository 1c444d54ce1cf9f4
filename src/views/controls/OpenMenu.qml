pragma Singleton

import QtQuick
import QtQuick.Templates as T

/*!
    The menu that is open. It is modal: there is one at most.
*/
QtObject {
    property T.Popup menu: null
}
