import QtQuick
import Pelmira 1.0

// The way from the first screen to the settings. It does without the templates of Qt Quick Controls:
// loading them would delay the first screen's first frame.
Item {
    id: control

    signal clicked

    width: Theme.target
    height: Theme.target
    activeFocusOnTab: true

    Accessible.role: Accessible.Button
    Accessible.name: Localized.text("settings.title")
    Accessible.description: "Ctrl+,"
    Accessible.focusable: true
    Accessible.onPressAction: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onSpacePressed: clicked()

    Rectangle {
        anchors.fill: parent
        radius: Theme.buttonRadius
        color: tap.pressed ? Theme.pressed : Theme.hover
        opacity: tap.pressed || hover.hovered ? 1 : 0
        Behavior on opacity { NumberAnimation { duration: Theme.quick } }
    }
    FocusRing {
        visible: control.activeFocus
        anchors.fill: parent
    }
    IconView {
        anchors.centerIn: parent
        width: Theme.icon
        height: Theme.icon
        source: "icons/settings.svg"
        tintColor: Theme.text
    }
    TapHandler {
        id: tap
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: control.clicked()
    }
    HoverHandler {
        id: hover
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
    }
    HoverTip {
        text: control.Accessible.name
        key: control.Accessible.description
        above: false
        wanted: hover.hovered && !tap.pressed
    }
}
