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
        property bool strides: false
        enabled: root.visible
        onActivated: root.screen.step(x, y, strides)
    }
    Nudge { sequence: "Left"; x: -1 }
    Nudge { sequence: "Right"; x: 1 }
    Nudge { sequence: "Up"; y: -1 }
    Nudge { sequence: "Down"; y: 1 }
    Nudge { sequence: "Shift+Left"; x: -1; strides: true }
    Nudge { sequence: "Shift+Right"; x: 1; strides: true }
    Nudge { sequence: "Shift+Up"; y: -1; strides: true }
    Nudge { sequence: "Shift+Down"; y: 1; strides: true }

    component Zoom: Shortcut {
        property int steps: 1
        enabled: root.visible
        onActivated: root.screen.zoomSteps(steps)
    }
    Zoom { sequences: [StandardKey.ZoomIn, "+"] }
    Zoom { sequences: [StandardKey.ZoomOut, "-"]; steps: -1 }

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
