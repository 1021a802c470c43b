import QtQuick
import QtQuick.Templates as T
import Pelmira 1.0

// A tinted icon with an optional caption. `model` is what the screen decides about the button; one
// without can always be pressed.
T.AbstractButton {
    id: control

    property InterfaceButton model: null
    property color tintColor: model !== null ? model.tintColor : Theme.text
    property string iconName
    property string caption
    property string key
    property bool toggles: false
    property bool tipAbove: true
    readonly property bool lit: model !== null && model.selected
    readonly property bool available: model === null || model.enabled

    enabled: available
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    implicitWidth: Theme.target
    implicitHeight: caption === "" ? Theme.target : 56

    // A press asks; the screen decides what is lit.
    checkable: toggles
    checked: toggles && lit
    onToggled: checked = Qt.binding(() => toggles && lit)

    Accessible.name: text
    Accessible.description: key

    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    background: Item {
        Rectangle {
            anchors.centerIn: parent
            width: Math.min(parent.width - 4, 64)
            height: parent.height - 4
            radius: Theme.buttonRadius
            color: control.pressed ? Theme.pressed : Theme.hover
            opacity: control.pressed || hover.hovered ? 1 : 0
            Behavior on opacity { NumberAnimation { duration: Theme.quick } }
        }
        FocusRing {
            visible: control.visualFocus
            anchors.centerIn: parent
            width: Math.min(parent.width - 4, 64)
            height: parent.height - 4
        }
    }

    contentItem: Item {
        opacity: control.available ? 1 : Theme.disabledOpacity
        scale: control.pressed ? 0.92 : 1
        Behavior on opacity { NumberAnimation { duration: Theme.motion } }
        Behavior on scale { NumberAnimation { duration: Theme.quick; easing.type: Easing.OutCubic } }

        IconView {
            id: icon
            x: Math.round((parent.width - width) / 2)
            y: control.caption === "" ? Math.round((parent.height - height) / 2) : 8
            width: Theme.icon
            height: Theme.icon
            source: control.iconName === "" ? "" : "icons/" + control.iconName + ".svg"
            tintColor: control.tintColor
        }
        PlText {
            visible: control.caption !== ""
            anchors.horizontalCenter: parent.horizontalCenter
            y: icon.y + icon.height + 3
            width: Math.min(implicitWidth, parent.width - 2)
            height: 14
            verticalAlignment: Text.AlignVCenter
            horizontalAlignment: Text.AlignHCenter
            elide: Text.ElideRight
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 8
            font.pixelSize: Theme.captionSize
            color: control.lit ? control.tintColor : Theme.secondaryText
            text: control.caption
        }
    }

    HoverHandler {
        id: hover
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
    }
    HoverTip {
        text: control.text
        key: control.key
        above: control.tipAbove
        wanted: hover.hovered && !control.pressed
    }
}
