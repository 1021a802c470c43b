import QtQuick

// A bar's ground. It keeps every finger, click and wheel turn from the picture behind it.
Rectangle {
    color: Theme.bar
    border.color: Theme.hairlineColor
    border.width: Theme.hairline

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        onWheel: wheel => wheel.accepted = true
    }
    MultiPointTouchArea {
        anchors.fill: parent
        mouseEnabled: false
    }
}
