import QtQuick
import QtQuick.Templates as T
import Pelmira 1.0

// What the camera sees, with the shutter where a thumb is: below, or at the right of a wide window.
ScreenPane {
    id: root

    required property CameraPicker screen

    readonly property bool active: visible && enabled
    readonly property bool wide: width > height
    readonly property real controlBand: 124
    readonly property bool isIdle: screen.noneFound || screen.failed

    // A control on the picture itself: it brings its own ground.
    component RoundButton: T.AbstractButton {
        id: button
        property string iconName
        property string key
        property bool tipAbove: true
        focusPolicy: Qt.TabFocus
        implicitWidth: 52
        implicitHeight: 52
        Accessible.name: text
        Accessible.description: key
        Keys.onReturnPressed: clicked()
        Keys.onEnterPressed: clicked()
        background: Rectangle {
            radius: height / 2
            color: button.pressed ? Theme.raised : "#99101113"
            border.color: Theme.hairlineColor
            border.width: Theme.hairline
            FocusRing {
                visible: button.visualFocus
                anchors.fill: parent
                anchors.margins: -3
                radius: height / 2
            }
        }
        contentItem: Item {
            IconView {
                anchors.centerIn: parent
                width: Theme.icon
                height: Theme.icon
                source: "icons/" + button.iconName + ".svg"
                tintColor: Theme.text
                scale: button.pressed ? 0.92 : 1
            }
        }
        HoverHandler {
            id: hover
            acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        }
        HoverTip {
            text: button.text
            key: button.key
            above: button.tipAbove
            wanted: hover.hovered && !button.pressed
        }
    }

    Rectangle {
        anchors.fill: parent
        color: "black"
    }

    ViewfinderView {
        anchors.fill: parent
        image: root.screen.frame
        mirrored: root.screen.mirrored
        keptFree: root.wide ? Qt.size(root.controlBand, 0) : Qt.size(0, root.controlBand)
        Accessible.role: Accessible.Graphic
        Accessible.name: Localized.text("homescreen.button.camera")
    }

    // The eye's sign that the picture is taken.
    Rectangle {
        id: flash
        anchors.fill: parent
        color: "black"
        opacity: 0
        SequentialAnimation {
            running: root.screen.taking
            PropertyAction { target: flash; property: "opacity"; value: 0.7 }
            NumberAnimation { target: flash; property: "opacity"; to: 0; duration: Theme.motion }
        }
    }

    // Controls stay readable over any picture.
    Rectangle {
        visible: root.screen.canShoot || root.screen.taking
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        width: root.wide ? root.controlBand : parent.width
        height: root.wide ? parent.height : root.controlBand
        gradient: Gradient {
            orientation: root.wide ? Gradient.Horizontal : Gradient.Vertical
            GradientStop { position: 0; color: "#00000000" }
            GradientStop { position: 1; color: "#99000000" }
        }
    }

    Item {
        id: stateLines
        anchors.centerIn: parent
        anchors.horizontalCenterOffset: root.wide && !root.isIdle
                                        ? -root.controlBand / 2 : 0
        width: Math.min(root.width - 8 * Theme.grid, 420)
        height: lines.height

        Column {
            id: lines
            width: parent.width
            spacing: 2 * Theme.grid
            visible: root.isIdle

            IconView {
                anchors.horizontalCenter: parent.horizontalCenter
                width: 56
                height: 56
                source: "icons/camera-none.svg"
                tintColor: Theme.secondaryText
            }
            PlLabel {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                lineHeight: 1.2
                font.pixelSize: Theme.titleSize
                font.weight: Font.DemiBold
                text: root.screen.message
                Accessible.role: Accessible.AlertMessage
            }
            PlLabel {
                visible: root.screen.noneFound
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                lineHeight: 1.2
                color: Theme.secondaryText
                text: Localized.text("camera.error.none.hint")
            }
            Item { width: 1; height: 1 }
            CapsuleButton {
                anchors.horizontalCenter: parent.horizontalCenter
                visible: root.screen.failed
                iconName: "retry"
                text: Localized.text("camera.button.retry")
                onClicked: root.screen.retryButtonTapped()
            }
        }
        PlLabel {
            visible: root.screen.starting
            anchors.centerIn: parent
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            color: Theme.secondaryText
            text: Localized.text("camera.state.starting")
        }
    }

    RoundButton {
        id: cancel
        x: 2 * Theme.grid
        y: 2 * Theme.grid
        iconName: "back"
        text: Localized.text("camera.button.cancel")
        key: "Esc"
        tipAbove: false
        onClicked: root.screen.cancelButtonTapped()
    }

    Item {
        visible: !root.isIdle
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        width: root.wide ? root.controlBand : parent.width
        height: root.wide ? parent.height : root.controlBand

        CameraShutter {
            id: shutter
            anchors.centerIn: parent
            enabled: root.screen.canShoot
            busy: root.screen.taking
            text: Localized.text("camera.button.shutter")
            onClicked: root.screen.shutterButtonTapped()
        }
        RoundButton {
            visible: root.screen.canSwitch
            x: root.wide ? (parent.width - width) / 2 : shutter.x + shutter.width + 36
            y: root.wide ? shutter.y + shutter.height + 36 : (parent.height - height) / 2
            iconName: "camera-switch"
            text: Localized.text("camera.button.switch")
            key: "F"
            onClicked: root.screen.switchButtonTapped()
        }
    }

    NoticeStrip {
        anchors.horizontalCenter: parent.horizontalCenter
        y: 10 * Theme.grid
        maximumWidth: Math.min(root.width - 4 * Theme.grid, 560)
        text: root.isIdle ? "" : root.screen.message
    }

    // A button that the keyboard has gone to keeps its own keys.
    readonly property Item focused: Window.activeFocusItem
    readonly property bool buttonHasKeyboard: focused !== null && focused.visualFocus === true

    Shortcut {
        sequences: ["Space", "Return", "Enter"]
        autoRepeat: false
        enabled: root.active && !root.buttonHasKeyboard
        onActivated: root.screen.shutterButtonTapped()
    }
    Shortcut {
        sequence: "F"
        autoRepeat: false
        enabled: root.active
        onActivated: root.screen.switchButtonTapped()
    }
    Shortcut {
        sequences: [StandardKey.Cancel, "Back"]
        autoRepeat: false
        enabled: root.active
        onActivated: root.screen.cancelButtonTapped()
    }
}
