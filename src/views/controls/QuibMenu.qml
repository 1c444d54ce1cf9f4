import QtQuick

Item {
    function open() { }
}
