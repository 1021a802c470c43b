import QtQuick
import Pelmira 1.0

// The background editor's keys: arrows move the object, Shift makes them stride; plus and minus
// scale it, brackets turn it, H flips it.
Item {
    id: root

    required property EditBackgroundVC screen

    readonly property Item focused: Window.activeFocusItem
    // A control that the keyboard has gone to has the arrows for itself.
    readonly property bool arrowsAreFree: focused === null || focused.takesArrows === undefined
        && focused.stepSize === undefined
    readonly property bool isOpen: visible && !screen.isModal

    component Nudge: Shortcut {
        property int x: 0
        property int y: 0
        property bool strides: false
        enabled: root.isOpen && root.arrowsAreFree
        onActivated: root.screen.workAreaView.step(x, y, strides)
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
        enabled: root.isOpen
        onActivated: root.screen.workAreaView.zoomSteps(steps)
    }
    Zoom { sequences: [StandardKey.ZoomIn, "+", "="] }
    Zoom { sequences: [StandardKey.ZoomOut, "-"]; steps: -1 }

    component Turn: Shortcut {
        property int steps: 1
        enabled: root.isOpen
        onActivated: root.screen.workAreaView.turnSteps(steps)
    }
    Turn { sequence: "["; steps: -1 }
    Turn { sequence: "]" }

    Shortcut {
        sequence: "H"
        autoRepeat: false
        enabled: root.isOpen
        onActivated: root.screen.workAreaView.flip()
    }
    Shortcut {
        sequences: [StandardKey.Save]
        autoRepeat: false
        enabled: root.isOpen
        onActivated: root.screen.saveButtonPressed()
    }
    Shortcut {
        sequences: [StandardKey.Cancel]
        autoRepeat: false
        enabled: root.visible
        onActivated: root.screen.escapePressed()
    }
}
