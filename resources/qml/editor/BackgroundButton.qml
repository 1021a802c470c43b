import QtQuick
import QtQuick.Templates as T
import Pelmira 1.0

// A preview of the next background, which a press steps to.
T.AbstractButton {
    id: control

    property QtObject model: null
    property string key: "B"
    // Something lies over it.
    property bool covered: false

    visible: model !== null && opacity > 0
    enabled: model !== null && model.alpha > 0 && !covered
    opacity: model && !covered ? model.alpha : 0
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
            visible: control.model && control.model.showsImage
            source: "icons/checkerBg.svg"
        }
        Rectangle {
            anchors.fill: parent
            radius: 8
            color: control.model && !control.model.showsImage ? control.model.backgroundColor
                                                              : "transparent"
            border.color: control.model ? control.model.borderColor : "transparent"
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
