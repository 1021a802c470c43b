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

    Flickable {
        id: strip

        readonly property bool fits: contentWidth <= root.width

        x: fits ? Math.round((root.width - contentWidth) / 2) : 0
        width: fits ? contentWidth : root.width
        height: 80
        contentWidth: root.toolbar.contentSize.width
        contentHeight: height
        flickableDirection: Flickable.HorizontalFlick
        boundsBehavior: Flickable.DragOverBounds
        interactive: !fits
        pressDelay: 0

        function show(item) {
            const margin = 3 * Theme.grid;
            const wanted = Math.min(Math.max(contentX, item.x + item.width + margin - width),
                                    item.x - margin);
            glide.to = Math.max(0, Math.min(contentWidth - width, wanted));
            if (!fits && glide.to !== contentX)
                glide.restart();
        }
        NumberAnimation {
            id: glide
            target: strip
            property: "contentX"
            duration: Theme.motion
            easing.type: Easing.OutCubic
        }

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
                    strip.show(control);
                }
                onVisualFocusChanged: if (visualFocus) strip.show(control)

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

    component Fade: Rectangle {
        property bool wanted: false

        y: Theme.hairline
        width: 28
        height: root.height - y
        opacity: wanted ? 1 : 0
        Behavior on opacity { NumberAnimation { duration: Theme.quick } }
    }
    Fade {
        wanted: !strip.fits && strip.contentX > 4
        gradient: Gradient {
            orientation: Gradient.Horizontal
            GradientStop { position: 0; color: root.panelColor }
            GradientStop { position: 1; color: Qt.alpha(root.panelColor, 0) }
        }
    }
    Fade {
        x: root.width - width
        wanted: !strip.fits && strip.contentX < strip.contentWidth - strip.width - 4
        gradient: Gradient {
            orientation: Gradient.Horizontal
            GradientStop { position: 0; color: Qt.alpha(root.panelColor, 0) }
            GradientStop { position: 1; color: root.panelColor }
        }
    }

    // A mouse's wheel scrolls the strip sideways.
    WheelHandler {
        enabled: !strip.fits
        onWheel: event => {
            glide.stop();
            const turn = event.angleDelta.x !== 0 ? event.angleDelta.x : event.angleDelta.y;
            strip.contentX = Math.max(0, Math.min(strip.contentWidth - strip.width,
                                                  strip.contentX - turn));
        }
    }
}
