import QtQuick
import Pelmira 1.0

// The mask editor's keys. A key does what its button does, and only where that one would.
Item {
    id: root

    required property ViewController screen

    Shortcut {
        sequence: "W"
        autoRepeat: false
        enabled: root.visible && root.screen.wandButton.enabled
        onActivated: root.screen.wandButtonPressed()
    }
    Shortcut {
        sequence: "E"
        autoRepeat: false
        enabled: root.visible && root.screen.erasorButton.enabled
        onActivated: root.screen.erasorButtonPressed()
    }
    Shortcut {
        sequence: "R"
        autoRepeat: false
        enabled: root.visible && root.screen.replaceButton.enabled
        onActivated: root.screen.replaceButtonPressed()
    }
    Shortcut {
        sequences: [StandardKey.Undo]
        enabled: root.visible && root.screen.undoButton.enabled
        onActivated: root.screen.undoButtonPressed()
    }
    Shortcut {
        sequence: "I"
        autoRepeat: false
        enabled: root.visible && root.screen.invertMaskButton.enabled
        onActivated: root.screen.invertMaskButtonPressed()
    }
    Shortcut {
        sequence: "M"
        autoRepeat: false
        enabled: root.visible && root.screen.showMaskButton.enabled
        onActivated: root.screen.showMaskButtonPressed()
    }
    Shortcut {
        sequence: "B"
        autoRepeat: false
        enabled: root.visible && root.screen.changeBackgroundView.enabled
        onActivated: root.screen.changeBackgroundViewTapped()
    }
    Shortcut {
        sequence: "["
        enabled: root.visible
        onActivated: root.screen.stepBrushSize(-1)
    }
    Shortcut {
        sequence: "]"
        enabled: root.visible
        onActivated: root.screen.stepBrushSize(1)
    }
    Shortcut {
        sequences: [StandardKey.Save]
        autoRepeat: false
        enabled: root.visible && root.screen.saveButton.enabled
        onActivated: root.screen.saveButtonPressed()
    }
    Shortcut {
        sequence: "F1"
        autoRepeat: false
        enabled: root.visible && root.screen.helpButton.enabled
        onActivated: root.screen.helpButtonPressed()
    }
}
