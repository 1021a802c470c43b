import QtQuick
import QtQuick.Templates as T

// The app's slider: blue up to the thumb, grey after it, a white disc of eighteen points.
T.Slider {
    id: control

    property string name

    implicitWidth: 160
    implicitHeight: Theme.target
    focusPolicy: Qt.TabFocus
    stepSize: 0

    Accessible.name: name

    background: Rectangle {
        x: 1
        y: Math.round((control.height - height) / 2)
        width: control.width - 2
        height: 4
        radius: 2
        color: Theme.sliderMaxTrackColor
        Rectangle {
            width: Math.min(parent.width, control.handle.x + control.handle.width / 2)
            height: parent.height
            radius: parent.radius
            color: Theme.sliderMinTrackColor
        }
    }

    handle: Item {
        x: control.visualPosition * (control.width - width)
        y: (control.height - height) / 2
        width: 20
        height: 20
        Rectangle {
            anchors.fill: parent
            anchors.margins: 1
            radius: width / 2
            color: "white"
            scale: control.pressed ? 1.15 : 1
            Behavior on scale { NumberAnimation { duration: Theme.quick } }
        }
        FocusRing {
            visible: control.visualFocus
            anchors.fill: parent
            anchors.margins: -3
            radius: width / 2
        }
    }
}
