import QtQuick
import Pelmira 1.0

// A row that scrolls sideways where it doesn't fit, and fades towards the rest. Where it fits it
// stands in the middle, or at the left.
Item {
    id: root

    required property color ground
    property real contentWidth: 0
    property bool centers: true
    readonly property alias fits: range.fits
    default property alias content: flickable.flickableData

    // Brings a child wholly into sight.
    function reveal(item) { scrollTo(range.revealing(flickable.contentX, item.x, item.width)); }
    function scrollTo(offset) {
        glide.to = range.within(offset);
        if (glide.to !== flickable.contentX)
            glide.restart();
    }

    ScrollRange {
        id: range
        content: root.contentWidth
        view: root.width
    }
    Flickable {
        id: flickable
        x: root.fits && root.centers ? Math.round((root.width - root.contentWidth) / 2) : 0
        width: root.fits ? root.contentWidth : root.width
        height: root.height
        contentWidth: root.contentWidth
        contentHeight: height
        flickableDirection: Flickable.HorizontalFlick
        boundsBehavior: Flickable.DragOverBounds
        interactive: !root.fits
        clip: interactive
        pressDelay: 0
    }
    NumberAnimation {
        id: glide
        target: flickable
        property: "contentX"
        duration: Theme.motion
        easing.type: Easing.OutCubic
    }

    component Fade: Rectangle {
        property bool wanted: false

        width: 28
        height: root.height
        opacity: wanted ? 1 : 0
        Behavior on opacity { NumberAnimation { duration: Theme.quick } }
    }
    Fade {
        wanted: !root.fits && flickable.contentX > 4
        gradient: Gradient {
            orientation: Gradient.Horizontal
            GradientStop { position: 0; color: root.ground }
            GradientStop { position: 1; color: Qt.alpha(root.ground, 0) }
        }
    }
    Fade {
        x: root.width - width
        wanted: !root.fits && flickable.contentX < root.contentWidth - root.width - 4
        gradient: Gradient {
            orientation: Gradient.Horizontal
            GradientStop { position: 0; color: Qt.alpha(root.ground, 0) }
            GradientStop { position: 1; color: root.ground }
        }
    }

    // A mouse's wheel scrolls the row too.
    WheelHandler {
        enabled: !root.fits
        orientation: Qt.Vertical
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        onWheel: event => {
            glide.stop();
            flickable.contentX = range.turned(flickable.contentX, event.angleDelta);
        }
    }
}
