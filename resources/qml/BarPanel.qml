import QtQuick

// A bar's ground. It keeps every finger, click and wheel turn from the picture behind it.
Rectangle {
    color: Theme.bar
    border.color: Theme.hairlineColor
    border.width: Theme.hairline

    MultiPointTouchArea {
        anchors.fill: parent
    }
    WheelHandler {
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
    }
    WheelHandler {
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        orientation: Qt.Horizontal
    }
}
