import QtQuick
import QtQuick.Templates as T
import Pelmira 1.0

// An application of the grid: its icon, centred over its name.
T.AbstractButton {
    id: control

    required property CrossPromoteItem entry

    width: 95
    height: 95
    enabled: entry.canBeOpened
    focusPolicy: Qt.TabFocus
    Accessible.name: entry.name
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    background: Item {
        Rectangle {
            anchors.fill: parent
            radius: Theme.buttonRadius
            color: control.pressed ? Theme.pressed : Theme.hover
            opacity: control.pressed || hover.hovered ? 1 : 0
            Behavior on opacity { NumberAnimation { duration: Theme.quick } }
        }
        FocusRing {
            visible: control.visualFocus
            anchors.fill: parent
        }
    }
    contentItem: Item {
        opacity: control.entry.canBeOpened ? 1 : 0.5
        CrossPromoteIcon {
            id: icon
            anchors.horizontalCenter: parent.horizontalCenter
            y: Math.round((parent.height - height - label.height - 3) / 2)
            width: 60
            height: 60
            entry: control.entry
        }
        PlText {
            id: label
            anchors.horizontalCenter: parent.horizontalCenter
            y: icon.y + icon.height + 3
            width: parent.width - 4
            height: 18
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 6
            font.pixelSize: 12
            text: control.entry.name
        }
    }
    HoverHandler {
        id: hover
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
    }
}
