import QtQuick
import Pelmira 1.0

// Reports fingers, the mouse, the wheel and a touchpad's gestures, in points of the window.
Item {
    id: root

    required property TOCropViewController screen

    function inWindow(x, y) { return Qt.point(root.x + x, root.y + y); }

    MultiPointTouchArea {
        anchors.fill: parent
        mouseEnabled: true
        maximumTouchPoints: 10

        onPressed: touchPoints => {
            for (const point of touchPoints)
                root.screen.touchBegan(point.pointId, root.inWindow(point.x, point.y));
        }
        onUpdated: touchPoints => {
            for (const point of touchPoints)
                root.screen.touchMoved(point.pointId, root.inWindow(point.x, point.y));
        }
        onReleased: touchPoints => {
            for (const point of touchPoints)
                root.screen.touchEnded(point.pointId);
        }
        onCanceled: root.screen.touchesCancelled()
    }

    // Beside the fingers' area, which keeps the left button: this one only tells of the wheel.
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.NoButton
        onWheel: wheel => {
            const zooms = wheel.pixelDelta.x === 0 && wheel.pixelDelta.y === 0
                || wheel.modifiers & Qt.ControlModifier;
            if (zooms)
                root.screen.zoomBy(Math.pow(1.2, wheel.angleDelta.y / 120), root.inWindow(wheel.x, wheel.y));
            else
                root.screen.nudge(-wheel.pixelDelta.x, -wheel.pixelDelta.y);
        }
    }

    PinchHandler {
        id: pinch

        property real lastScale: 1

        target: null
        acceptedDevices: PointerDevice.TouchPad
        onActiveChanged: lastScale = 1
        onActiveScaleChanged: {
            if (!active || activeScale <= 0)
                return;
            root.screen.zoomBy(activeScale / lastScale,
                               root.inWindow(centroid.position.x, centroid.position.y));
            lastScale = activeScale;
        }
    }

    HoverHandler {
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        cursorShape: {
            const frame = root.screen.cropBoxFrame; // asked again when the box moves
            return root.screen.cursorForPoint(root.inWindow(point.position.x, point.position.y));
        }
    }
}
