import QtQuick
import Pelmira 1.0

// One of a screen's few large choices: an icon and words. It does without the templates of Qt Quick
// Controls: loading them would delay the first screen's first frame.
Item {
    id: control

    property bool isAction: false
    property bool available: true
    property string iconName
    property string text

    signal clicked

    readonly property color ink: isAction ? Theme.onAction : Theme.text
    readonly property color ground: isAction ? Theme.buttonBlue : Theme.raised

    height: 54
    enabled: available
    opacity: available ? 1 : 0.6
    activeFocusOnTab: true

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.focusable: true
    Accessible.onPressAction: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onSpacePressed: clicked()

    PlateView {
        anchors.fill: parent
        radius: height / 2
        color: tap.pressed ? Qt.darker(control.ground, 1.2)
             : hover.hovered ? Qt.lighter(control.ground, 1.1) : control.ground
        Behavior on color { ColorAnimation { duration: Theme.quick } }
    }
    FocusRing {
        visible: control.activeFocus
        anchors.fill: parent
        border.color: Theme.text
        radius: height / 2
    }
    Row {
        anchors.centerIn: parent
        spacing: 1.25 * Theme.grid
        IconView {
            anchors.verticalCenter: parent.verticalCenter
            visible: control.iconName !== ""
            width: Theme.icon
            height: Theme.icon
            source: control.iconName === "" ? "" : "icons/" + control.iconName + ".svg"
            tintColor: control.ink
        }
        PlText {
            anchors.verticalCenter: parent.verticalCenter
            font.pixelSize: Theme.titleSize
            font.weight: Font.DemiBold
            color: control.ink
            text: control.text
        }
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
}
