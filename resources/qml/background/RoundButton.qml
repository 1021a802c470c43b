import QtQuick
import QtQuick.Templates as T
import Pelmira 1.0

// A round button with an icon. The one that finishes stands out.
T.AbstractButton {
    id: control

    required property string iconName
    property bool isAction: false

    implicitWidth: Theme.target
    implicitHeight: Theme.target
    focusPolicy: Qt.TabFocus
    Accessible.name: text
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    background: Item {
        Rectangle {
            anchors.fill: parent
            anchors.margins: 2
            radius: width / 2
            color: control.isAction ? (control.pressed ? Qt.darker(Theme.buttonBlue, 1.2) : Theme.buttonBlue)
                                    : (control.pressed ? Theme.pressed : Theme.hover)
        }
        FocusRing {
            visible: control.visualFocus
            anchors.fill: parent
            radius: width / 2
            border.color: Theme.text
        }
    }
    contentItem: Item {
        IconView {
            anchors.centerIn: parent
            width: Theme.icon
            height: Theme.icon
            source: "icons/" + control.iconName + ".svg"
            tintColor: control.isAction ? Theme.onAction : Theme.text
        }
    }
    HoverHandler {
        id: hover
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
    }
    HoverTip {
        text: control.text
        wanted: hover.hovered && !control.pressed
    }
}
