import QtQuick
import QtQuick.Templates as T
import Pelmira 1.0

// The app's switch, for light and dark grounds: blue with the thumb at the right when it is on.
T.Switch {
    id: control

    // What is on is the model's to say; a press only asks for it.
    required property InterfaceButton model
    required property string name
    property color focusColor: Theme.buttonBlue

    signal requested(bool isOn)

    implicitWidth: 52
    implicitHeight: Theme.target
    focusPolicy: Qt.TabFocus
    enabled: model.enabled
    checked: model.selected
    opacity: enabled ? 1 : 0.5
    Accessible.name: name
    Keys.onReturnPressed: requested(!model.selected)
    Keys.onEnterPressed: requested(!model.selected)
    onToggled: {
        const isOn = checked;
        checked = Qt.binding(() => model.selected);
        requested(isOn);
    }
    Behavior on opacity { NumberAnimation { duration: Theme.motion } }

    indicator: Rectangle {
        y: (control.height - height) / 2
        width: 52
        height: 32
        radius: 16
        // Both at three to one at least against the light card and the white thumb.
        color: control.checked ? "#2a6fd6" : "#7a7f88"
        Behavior on color { ColorAnimation { duration: Theme.quick } }

        Rectangle {
            x: control.checked ? parent.width - width - 3 : 3
            y: 3
            width: 26
            height: 26
            radius: 13
            color: "white"
            Behavior on x { NumberAnimation { duration: Theme.quick; easing.type: Easing.OutCubic } }
        }
        FocusRing {
            visible: control.visualFocus
            anchors.fill: parent
            anchors.margins: -4
            radius: height / 2
            border.color: control.focusColor
        }
    }
}
