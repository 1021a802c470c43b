import QtQuick
import QtQuick.Templates as T
import Pelmira 1.0

// A preview of the next background, which a press steps to.
T.AbstractButton {
    id: control

    required property BackgroundPreview model
    property string key: "B"
    // Something lies over it.
    property bool covered: false

    visible: opacity > 0
    enabled: model.enabled && !covered
    opacity: covered ? 0 : model.alpha
    focusPolicy: Qt.TabFocus
    implicitWidth: Theme.target
    implicitHeight: Theme.target
    scale: pressed ? 0.92 : 1

    Accessible.name: text
    Accessible.description: key
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Behavior on opacity {
        NumberAnimation { duration: control.covered ? Theme.motion : Theme.barMotion; easing.type: Easing.OutCubic }
    }
    Behavior on scale { NumberAnimation { duration: Theme.quick; easing.type: Easing.OutCubic } }

    background: Item {
        IconView {
            anchors.fill: parent
            visible: control.model.showsImage
            source: "icons/checkerBg.svg"
        }
        Rectangle {
            anchors.fill: parent
            radius: 8
            color: control.model.backgroundColor
            border.color: control.model.borderColor
            border.width: 1
        }
        FocusRing {
            visible: control.visualFocus
            anchors.fill: parent
            anchors.margins: -4
        }
    }

    HoverHandler {
        id: hover
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
    }
    HoverTip {
        text: control.text
        key: control.key
        wanted: hover.hovered && !control.pressed
    }
}
