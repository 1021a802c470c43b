import QtQuick
import Pelmira 1.0

// The crop tool's keys: arrows move what is chosen over the image, Shift makes them stride.
Item {
    id: root

    required property TOCropViewController screen

    // Enter belongs to a button that the keyboard has gone to.
    readonly property Item focused: Window.activeFocusItem
    readonly property bool buttonHasKeyboard: focused !== null && focused.visualFocus === true

    component Nudge: Shortcut {
        property int x: 0
        property int y: 0
        enabled: root.visible
        onActivated: root.screen.nudge(x, y)
    }
    Nudge { sequence: "Left"; x: -1 }
    Nudge { sequence: "Right"; x: 1 }
    Nudge { sequence: "Up"; y: -1 }
    Nudge { sequence: "Down"; y: 1 }
    Nudge { sequence: "Shift+Left"; x: -10 }
    Nudge { sequence: "Shift+Right"; x: 10 }
    Nudge { sequence: "Shift+Up"; y: -10 }
    Nudge { sequence: "Shift+Down"; y: 10 }

    component Zoom: Shortcut {
        property real factor: 1
        enabled: root.visible
        onActivated: {
            const box = root.screen.cropBoxFrame;
            root.screen.zoomBy(factor, Qt.point(box.x + box.width / 2, box.y + box.height / 2));
        }
    }
    Zoom { sequences: [StandardKey.ZoomIn, "+"]; factor: 1.1 }
    Zoom { sequences: [StandardKey.ZoomOut, "-"]; factor: 1 / 1.1 }

    Shortcut {
        sequences: ["Return", "Enter"]
        autoRepeat: false
        enabled: root.visible && !root.buttonHasKeyboard
        onActivated: root.screen.doneButtonTapped()
    }
    Shortcut {
        sequences: [StandardKey.Cancel]
        autoRepeat: false
        enabled: root.visible
        onActivated: root.screen.cancelButtonTapped()
    }
}
