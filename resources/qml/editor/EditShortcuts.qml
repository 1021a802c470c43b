import QtQuick

// The mask editor's keys. A key does what its button does, and only where that one would.
Item {
    id: root

    required property QtObject screen

    function offered(button) { return visible && (button ?? null) !== null && button.enabled; }

    Shortcut {
        sequence: "W"
        autoRepeat: false
        enabled: root.offered(root.screen.wandButton)
        onActivated: root.screen.wandButtonPressed()
    }
    Shortcut {
        sequence: "E"
        autoRepeat: false
        enabled: root.offered(root.screen.erasorButton)
        onActivated: root.screen.erasorButtonPressed()
    }
    Shortcut {
        sequence: "R"
        autoRepeat: false
        enabled: root.offered(root.screen.replaceButton)
        onActivated: root.screen.replaceButtonPressed()
    }
    Shortcut {
        sequences: [StandardKey.Undo]
        enabled: root.offered(root.screen.undoButton)
        onActivated: root.screen.undoButtonPressed()
    }
    Shortcut {
        sequence: "I"
        autoRepeat: false
        enabled: root.offered(root.screen.invertMaskButton)
        onActivated: root.screen.invertMaskButtonPressed()
    }
    Shortcut {
        sequence: "M"
        autoRepeat: false
        enabled: root.offered(root.screen.showMaskButton)
        onActivated: root.screen.showMaskButtonPressed()
    }
    Shortcut {
        sequence: "B"
        autoRepeat: false
        enabled: root.visible && root.screen.changeBackgroundView.alpha > 0
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
        enabled: root.offered(root.screen.saveButton)
        onActivated: root.screen.saveButtonPressed()
    }
    Shortcut {
        sequence: "F1"
        autoRepeat: false
        enabled: root.offered(root.screen.helpButton)
        onActivated: root.screen.helpButtonPressed()
    }
}
