import QtQuick
import QtQuick.Templates as T
import Pelmira 1.0

// The ratios of the canvas, side by side.
SlidingPanel {
    id: root

    required property BGECanvasView panel

    title: Localized.text("backgroundeditscreen.canvas")
    contentHeight: 92

    ScrollStrip {
        id: strip
        width: parent.width
        height: 84
        contentWidth: root.panel.contentSize.width
        ground: root.isWide ? Theme.sheet : Theme.panel
        onHeightChanged: root.panel.stripHeight = height
        Component.onCompleted: root.panel.stripHeight = height

        Repeater {
            model: root.panel.buttons
            T.AbstractButton {
                id: control

                required property StripButton modelData

                x: modelData.frame.x
                y: modelData.frame.y
                width: modelData.frame.width
                height: modelData.frame.height
                focusPolicy: Qt.TabFocus
                text: modelData.title
                Accessible.name: modelData.name
                Accessible.checkable: true
                Accessible.checked: modelData.selected
                Keys.onReturnPressed: control.clicked()
                Keys.onEnterPressed: control.clicked()
                onClicked: {
                    root.panel.handleAspectThumbButtonWithButton(modelData);
                    strip.reveal(control);
                }
                onVisualFocusChanged: if (visualFocus) strip.reveal(control)

                background: Item {
                    Rectangle {
                        anchors.fill: parent
                        anchors.margins: 2
                        radius: Theme.buttonRadius
                        color: control.pressed ? Theme.pressed : Theme.hover
                        opacity: control.pressed || hover.hovered ? 1 : 0
                        Behavior on opacity { NumberAnimation { duration: Theme.quick } }
                    }
                    FocusRing {
                        visible: control.visualFocus
                        anchors.fill: parent
                        anchors.margins: 2
                    }
                }
                contentItem: Item {
                    scale: control.pressed ? 0.94 : 1
                    Behavior on scale { NumberAnimation { duration: Theme.quick } }
                    // The icon over its name, four points between.
                    ImageView {
                        id: icon
                        anchors.horizontalCenter: parent.horizontalCenter
                        y: Math.round((parent.height - 44 - 4 - 12) / 2)
                        width: 44
                        height: 44
                        image: control.modelData.image
                    }
                    PlText {
                        anchors.horizontalCenter: parent.horizontalCenter
                        y: icon.y + 48
                        height: 12
                        verticalAlignment: Text.AlignVCenter
                        font.pixelSize: 10
                        color: control.modelData.tintColor
                        text: control.text
                    }
                }
                HoverHandler {
                    id: hover
                    acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
                }
            }
        }
    }
}
