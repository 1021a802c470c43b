import QtQuick

// The ground of a screen that is a sheet on wide windows, with round corners there. What lies below
// it gets nothing.
Rectangle {
    radius: Window.window && width < Window.width ? Theme.barRadius : 0
    color: Theme.sheet
    border.color: Theme.hairlineColor
    border.width: radius > 0 ? Theme.hairline : 0

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
        onWheel: wheel => wheel.accepted = true
    }
}
