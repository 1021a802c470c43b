import QtQuick
import QtQuick.Templates as T
import Pelmira 1.0

// An action of the save screen: an icon centred above a word. The one that saves stands out.
T.AbstractButton {
    id: control

    required property InterfaceButton model
    required property string iconName
    required property string name
    property string key
    property bool isAction: false

    readonly property color ink: isAction ? Theme.onAction : Theme.text

    enabled: model.enabled
    focusPolicy: Qt.TabFocus
    implicitWidth: 104
    implicitHeight: 56

    Accessible.name: name
    Accessible.description: key
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    background: Item {
        opacity: control.model.enabled ? 1 : Theme.disabledOpacity
        Behavior on opacity { NumberAnimation { duration: Theme.motion } }
        Rectangle {
            anchors.fill: parent
            radius: Theme.buttonRadius
            color: control.isAction
                ? (control.pressed ? Qt.darker(Theme.buttonBlue, 1.2)
                   : hover.hovered ? Qt.lighter(Theme.buttonBlue, 1.08) : Theme.buttonBlue)
                : (control.pressed ? Theme.pressed : hover.hovered ? "#22ffffff" : Theme.hover)
            Behavior on color { ColorAnimation { duration: Theme.quick } }
        }
        FocusRing {
            visible: control.visualFocus
            anchors.fill: parent
            anchors.margins: -3
            radius: Theme.buttonRadius + 3
            border.color: Theme.text
        }
    }

    contentItem: Item {
        opacity: control.model.enabled ? 1 : Theme.disabledOpacity
        Behavior on opacity { NumberAnimation { duration: Theme.motion } }
        Column {
            anchors.centerIn: parent
            width: parent.width - 8
            spacing: 2
            IconView {
                anchors.horizontalCenter: parent.horizontalCenter
                width: Theme.icon
                height: Theme.icon
                source: "icons/" + control.iconName + ".svg"
                tintColor: control.ink
            }
            PlText {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                elide: Text.ElideRight
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: 9
                font.pixelSize: 13
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
    HoverTip {
        text: control.name
        key: control.key
        wanted: hover.hovered && !control.pressed
    }
}
