import QtQuick
import QtQuick.Templates as T

// A word in a bar that acts.
T.AbstractButton {
    id: control

    property bool isAction: false
    property string key

    implicitWidth: Math.max(Theme.target, Math.ceil(label.implicitWidth) + 4 * Theme.grid)
    implicitHeight: Theme.target
    focusPolicy: Qt.TabFocus

    Accessible.name: text
    Accessible.description: key
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    background: Item {
        Rectangle {
            anchors.fill: parent
            anchors.margins: 4
            radius: Theme.buttonRadius - 4
            color: control.pressed ? Theme.pressed : Theme.hover
            opacity: control.pressed || hover.hovered ? 1 : 0
            Behavior on opacity { NumberAnimation { duration: Theme.quick } }
        }
        FocusRing {
            visible: control.visualFocus
            anchors.fill: parent
            anchors.margins: 4
            radius: Theme.buttonRadius - 4
        }
    }

    contentItem: PlText {
        id: label
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        color: control.isAction ? Theme.buttonBlue : Theme.text
        font.weight: control.isAction ? Font.DemiBold : Font.Normal
        font.pixelSize: Theme.bodySize + 1
        text: control.text
    }

    HoverHandler {
        id: hover
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
    }
    HoverTip {
        text: control.text
        key: control.key
        above: false
        wanted: hover.hovered && !control.pressed
    }
}
