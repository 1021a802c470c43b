import QtQuick
import Pelmira 1.0

// The crop tool: the image under a box, a dimmed surround, and the ratios within the thumb's reach.
// The screen's C++ side computes every frame; this file shows them and reports what is touched.
ScreenPane {
    id: root

    required property TOCropViewController screen

    FrameAnimation {
        running: root.visible && root.screen.moving
        onTriggered: root.screen.displayLinkFired()
    }

    Item {
        anchors.fill: parent
        opacity: root.screen.transition.toolAlpha

        Rectangle {
            anchors.fill: parent
            color: root.screen.backgroundColor
        }

        Item {
            id: stage
            anchors.fill: parent
            // The tool comes in without a jolt.
            opacity: root.screen.inTransition ? 0 : 1
            scale: root.screen.inTransition ? 0.97 : 1
            Behavior on opacity { NumberAnimation { duration: 400; easing.type: Easing.OutCubic } }
            Behavior on scale { NumberAnimation { duration: 400; easing.type: Easing.OutCubic } }

            // One of several sizes, so that the picture is sharp at any zoom.
            Repeater {
                model: root.screen.levels.length
                ImageView {
                    required property int index

                    x: root.screen.imageFrame.x
                    y: root.screen.imageFrame.y
                    width: root.screen.imageFrame.width
                    height: root.screen.imageFrame.height
                    visible: index === root.screen.shownLevel && !root.screen.transition.running
                    image: root.screen.levels[index]
                }
            }
            CropOverlay {
                anchors.fill: parent
                name: Localized.text("crop.frame")
                box: root.screen.onPixels(root.screen.cropBoxFrame, Screen.devicePixelRatio)
                dimColor: root.screen.backgroundColor
                editing: root.screen.editing
            }
        }

        // In points of the window; the bars above it keep what lands on them.
        TouchArea {
            anchors.fill: parent
            screen: root.screen
            wheelZooms: true
            takesTab: false
            HoverHandler {
                acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
                cursorShape: {
                    const frame = root.screen.cropBoxFrame; // asked again when the box moves
                    return root.screen.cursorForPoint(point.position);
                }
            }
        }

        CropTopBar {
            x: root.screen.navBarFrame.x
            width: root.screen.navBarFrame.width
            insetAbove: root.screen.navBarFrame.y
            height: root.screen.navBarFrame.y + root.screen.navBarFrame.height
            screen: root.screen
        }

        CropToolbar {
            x: root.screen.toolbarFrame.x
            y: root.screen.toolbarFrame.y
            width: root.screen.toolbarFrame.width
            height: root.screen.toolbarFrame.height
            toolbar: root.screen.toolbar
            panelColor: root.screen.panelColor
        }
    }

    ImageView {
        visible: root.screen.transition.running
        x: root.screen.transition.frame.x
        y: root.screen.transition.frame.y
        width: root.screen.transition.frame.width
        height: root.screen.transition.frame.height
        image: root.screen.transition.image
    }

    AlertOverlay {
        alert: root.screen.alert
    }

    CropShortcuts {
        visible: root.enabled && !root.screen.transition.running && !root.screen.alert.isOpen
        screen: root.screen
    }
}
