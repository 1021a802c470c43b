import QtQuick
import QtQuick.Templates as T
import Pelmira 1.0

// The one action of a bar that stands out: an icon and a word on the palette's blue.
T.AbstractButton {
    id: control

    property InterfaceButton model: null
    property bool available: model === null || model.enabled
    property string iconName
    property string key
    property string name: text

    enabled: available
    focusPolicy: Qt.TabFocus
    implicitWidth: row.implicitWidth + 32
    implicitHeight: Theme.target

    Accessible.name: name
    Accessible.description: key
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    background: Item {
        opacity: control.available ? 1 : Theme.disabledOpacity
        Rectangle {
            anchors.fill: parent
            anchors.topMargin: 4
            anchors.bottomMargin: 4
            radius: height / 2
            color: control.pressed ? Qt.darker(Theme.buttonBlue, 1.2)
                 : hover.hovered ? Qt.lighter(Theme.buttonBlue, 1.08) : Theme.buttonBlue
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
            id: row
            anchors.centerIn: parent
            spacing: 6
            IconView {
                anchors.verticalCenter: parent.verticalCenter
                visible: control.iconName !== ""
                width: 20
                height: 20
                source: control.iconName === "" ? "" : "icons/" + control.iconName + ".svg"
                tintColor: Theme.onAction
            }
            PlText {
                anchors.verticalCenter: parent.verticalCenter
                color: Theme.onAction
                font.weight: Font.DemiBold
                text: control.text
            }
        }
    }

    HoverHandler {
        id: hover
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
    }
    HoverTip {
        text: control.name
        key: control.key
        above: false
        wanted: hover.hovered && !control.pressed
    }
}
