import QtQuick
import QtQuick.Templates as T
import Pelmira 1.0

// The app's slider: blue up to the thumb, grey after it, a white disc of eighteen points. For a value
// that goes both ways the blue begins in the middle, at a mark.
T.Slider {
    id: control

    required property ZKLSlider model
    property string name
    property color minimumTrackColor: Theme.sliderMinTrackColor
    property color maximumTrackColor: Theme.sliderMaxTrackColor

    implicitWidth: 160
    implicitHeight: Theme.target
    focusPolicy: Qt.TabFocus
    from: model.minimumValue
    to: model.maximumValue
    value: model.value
    // A press of an arrow key; a drag goes in between as well.
    stepSize: (to - from) / 100
    snapMode: T.Slider.NoSnap

    onMoved: pressed ? model.dragTo(value) : model.moveTo(value)
    Keys.onPressed: event => event.accepted = model.keyPressed(event.key)

    Accessible.name: name

    background: Rectangle {
        x: 1
        y: Math.round((control.height - height) / 2)
        width: control.width - 2
        height: 4
        radius: 2
        color: control.maximumTrackColor
        Rectangle {
            visible: control.model.fillsFromMiddle
            anchors.centerIn: parent
            width: 2
            height: 12
            radius: 1
            color: control.maximumTrackColor
        }
        Rectangle {
            readonly property real start: control.model.fillsFromMiddle ? parent.width / 2 : 0
            readonly property real thumb: Math.min(parent.width, control.handle.x + control.handle.width / 2)
            x: Math.min(start, thumb)
            width: Math.abs(thumb - start)
            height: parent.height
            radius: parent.radius
            color: control.minimumTrackColor
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
