import QtQuick
import QtQuick.Templates as T
import Pelmira 1.0

// One of a screen's few large choices: an icon and words.
T.AbstractButton {
    id: control

    property bool isAction: false
    property string iconName

    readonly property color ink: isAction ? Theme.onAction : Theme.text
    readonly property color ground: isAction ? Theme.buttonBlue : Theme.raised

    height: 54
    focusPolicy: Qt.TabFocus
    opacity: enabled ? 1 : 0.6
    Accessible.name: text
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    background: Item {
        Rectangle {
            anchors.fill: parent
            radius: height / 2
            color: control.pressed ? Qt.darker(control.ground, 1.2)
                 : hover.hovered ? Qt.lighter(control.ground, 1.1) : control.ground
            Behavior on color { ColorAnimation { duration: Theme.quick } }
        }
        FocusRing {
            visible: control.visualFocus
            anchors.fill: parent
            border.color: Theme.text
            radius: height / 2
        }
    }
    contentItem: Item {
        Row {
            anchors.centerIn: parent
            spacing: 1.25 * Theme.grid
            IconView {
                anchors.verticalCenter: parent.verticalCenter
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
    }
    HoverHandler {
        id: hover
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
    }
}
