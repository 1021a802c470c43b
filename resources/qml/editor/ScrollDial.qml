import QtQuick
import Pelmira 1.0

// Shows a dial and reports to it what finger, mouse, wheel and keys do. The dial decides the rest.
Item {
    id: root

    required property ZKLScrollDial dial
    // How far the finger's target reaches past the dial's frame.
    property real reachAbove: 0
    property real reachBelow: 0

    // Assistive technology reads these, and writes the value.
    property real value: dial.value
    readonly property real minimumValue: 0
    readonly property real maximumValue: 1
    readonly property real stepSize: 0.01

    onValueChanged: if (value !== dial.value) dial.scrollToValue(value)

    activeFocusOnTab: true
    Accessible.role: Accessible.Slider
    Accessible.name: dial.title
    Accessible.description: dial.valueText
    Accessible.onIncreaseAction: dial.stepBy(stepSize)
    Accessible.onDecreaseAction: dial.stepBy(-stepSize)

    Keys.onPressed: event => event.accepted = dial.keyPressed(event.key)

    Connections {
        target: root.dial
        function onContentOffsetMoved(x) { strip.contentX = x; }
    }
    Component.onCompleted: {
        dial.layoutIfNeeded();
        strip.contentX = dial.contentOffset;
    }

    PlText {
        x: root.dial.titleFrame.x
        height: root.dial.titleFrame.height
        verticalAlignment: Text.AlignVCenter
        font: root.dial.font
        text: root.dial.titleText
    }

    Flickable {
        id: strip

        x: root.dial.scrollViewFrame.x
        y: -root.reachAbove
        width: root.dial.scrollViewFrame.width
        height: root.dial.scrollViewFrame.height + root.reachAbove + root.reachBelow
        clip: true
        flickableDirection: Flickable.HorizontalFlick
        boundsBehavior: Flickable.DragAndOvershootBounds
        flickDeceleration: 7500
        leftMargin: root.dial.contentInset
        rightMargin: root.dial.contentInset
        contentWidth: root.dial.contentWidth
        contentHeight: height

        // Only the user's own moves: a layout shifts the content as well.
        onContentXChanged: if (moving) root.dial.scrollViewDidScroll(contentX)

        ImageView {
            y: root.reachAbove + root.dial.stripFrame.y
            width: root.dial.stripFrame.width
            height: root.dial.stripFrame.height
            image: root.dial.strip
        }
    }

    // The strip runs out softly at both ends.
    Repeater {
        model: [strip.x, strip.x + strip.width - 32]
        Rectangle {
            required property real modelData
            required property int index
            x: modelData
            y: root.dial.scrollViewFrame.y
            width: 32
            height: root.dial.scrollViewFrame.height
            gradient: Gradient {
                orientation: Gradient.Horizontal
                GradientStop { position: index; color: Theme.barFade }
                GradientStop { position: 1 - index; color: Theme.barFadeEnd }
            }
        }
    }

    Rectangle {
        x: root.dial.valueFrame.x
        y: root.dial.valueFrame.y
        width: root.dial.valueFrame.width
        height: root.dial.valueFrame.height
        radius: Math.min(root.dial.valueCornerRadius, height / 2)
        color: Theme.darkGrey
        border.color: root.activeFocus ? Theme.buttonBlue : Theme.lightGrey
        border.width: root.activeFocus ? 2 : 1
        PlText {
            anchors.centerIn: parent
            font: root.dial.font
            text: root.dial.valueText
        }
    }

    // Above the strip, which would take the wheel for itself.
    Item {
        x: strip.x
        y: strip.y
        width: strip.width
        height: strip.height
        WheelHandler {
            acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
            onWheel: event => root.dial.wheelTurned(Qt.point(0, event.angleDelta.y))
        }
        WheelHandler {
            acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
            orientation: Qt.Horizontal
            onWheel: event => root.dial.wheelTurned(Qt.point(event.angleDelta.x, 0))
        }
    }
}
