import QtQuick
import Pelmira 1.0

// The background editor's keys: arrows move the object, Shift makes them stride; plus and minus
// scale it, brackets turn it, H flips it.
Item {
    id: root

    required property EditBackgroundVC screen

    readonly property Item focused: Window.activeFocusItem
    // A control that the keyboard has gone to has the arrows for itself.
    readonly property bool arrowsAreFree: focused === null || focused.step === undefined
        && focused.stepSize === undefined
    readonly property bool isOpen: visible && !screen.mixerIsUp

    component Nudge: Shortcut {
        property int x: 0
        property int y: 0
        enabled: root.isOpen && root.arrowsAreFree
        onActivated: root.screen.workAreaView.nudge(x, y)
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
        enabled: root.isOpen
        onActivated: root.screen.workAreaView.scaleBy(factor)
    }
    Zoom { sequences: [StandardKey.ZoomIn, "+", "="]; factor: 1.05 }
    Zoom { sequences: [StandardKey.ZoomOut, "-"]; factor: 1 / 1.05 }

    component Turn: Shortcut {
        property real degrees: 0
        enabled: root.isOpen
        onActivated: root.screen.workAreaView.rotateBy(degrees)
    }
    Turn { sequence: "["; degrees: -5 }
    Turn { sequence: "]"; degrees: 5 }

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
