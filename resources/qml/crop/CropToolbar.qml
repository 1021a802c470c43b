import QtQuick
import QtQuick.Templates as T
import Pelmira 1.0

// The ratios, side by side. Where they don't all fit they scroll, and fade towards the rest.
Item {
    id: root

    required property TOCropToolbar toolbar
    required property color panelColor

    BarPanel {
        anchors.fill: parent
        // Its outline shows only at the upper edge.
        anchors.margins: -1
        anchors.topMargin: 0
        color: root.panelColor
    }

    ScrollStrip {
        id: strip
        width: parent.width
        height: parent.height
        contentWidth: root.toolbar.contentSize.width
        ground: root.panelColor

        Repeater {
            model: root.toolbar.buttons
            T.AbstractButton {
                id: control

                required property ConstraintButton modelData

                x: modelData.frame.x
                y: modelData.frame.y
                width: modelData.frame.width
                height: modelData.frame.height
                focusPolicy: Qt.TabFocus
                text: modelData.title
                checkable: true
                checked: modelData.selected
                onToggled: checked = Qt.binding(() => modelData.selected)
                Accessible.name: modelData.name
                Keys.onReturnPressed: control.clicked()
                Keys.onEnterPressed: control.clicked()
                onClicked: {
                    root.toolbar.constraintButtonPressed(modelData);
                    strip.reveal(control);
                }
                onVisualFocusChanged: if (visualFocus) strip.reveal(control)

                background: Item {
                    Rectangle {
                        anchors.fill: parent
                        anchors.margins: -4
                        radius: Theme.buttonRadius
                        color: control.pressed ? Theme.pressed : Theme.hover
                        opacity: control.pressed || hover.hovered ? 1 : 0
                        Behavior on opacity { NumberAnimation { duration: Theme.quick } }
                    }
                    FocusRing {
                        visible: control.visualFocus
                        anchors.fill: parent
                        anchors.margins: -4
                    }
                }
                contentItem: Item {
                    scale: control.pressed ? 0.94 : 1
                    Behavior on scale { NumberAnimation { duration: Theme.quick } }
                    ImageView {
                        anchors.horizontalCenter: parent.horizontalCenter
                        width: 40
                        height: 40
                        image: control.modelData.image
                    }
                    PlText {
                        anchors.horizontalCenter: parent.horizontalCenter
                        y: 44
                        height: 16
                        verticalAlignment: Text.AlignVCenter
                        font.pixelSize: 12
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
