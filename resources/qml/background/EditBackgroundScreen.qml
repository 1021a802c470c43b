import QtQuick
import Pelmira 1.0

// The background editor: the canvas with its object, panels that slide up, and the tabs that call
// them. The screen's C++ side computes their frames.
ScreenPane {
    id: root

    required property EditBackgroundVC screen

    component Placed: Item {
        required property rect frame
        x: frame.x
        y: frame.y
        width: frame.width
        height: frame.height
    }

    // As dark as what the masks leave of it: no edge where the work area ends.
    Rectangle {
        anchors.fill: parent
        color: Qt.darker(Theme.ground, 5)
    }

    Placed {
        frame: root.screen.workAreaFrame
        clip: true

        WorkArea {
            anchors.fill: parent
            enabled: !root.screen.isModal
            workArea: root.screen.workAreaView
            shadow: root.screen.shadow
        }
    }

    // In a wide window the panels and the tabs stand on one ground.
    Rectangle {
        visible: root.screen.isWide
        x: root.screen.tabbarFrame.x
        y: root.screen.topBarFrame.height
        width: root.screen.tabbarFrame.width
        height: root.height - y
        color: Theme.sheet
        Rectangle {
            width: Theme.hairline
            height: parent.height
            color: Theme.hairlineColor
        }
    }

    Placed {
        frame: root.screen.controlContainerFrame
        clip: true
        enabled: !root.screen.isModal

        CanvasPanel {
            isWide: root.screen.isWide
            panel: root.screen.canvasPanel
            isUp: root.screen.panels.currentPanel === panel
            onCloseRequested: root.screen.panelCloseButtonPressed()
        }
        ColorPanel {
            isWide: root.screen.isWide
            panel: root.screen.colorPanel
            isUp: root.screen.panels.currentPanel === panel
            loupe: loupe
            rgbText: root.screen.rgbButtonLabel
            onRgbRequested: root.screen.handleRgbButtonTapped()
            onCloseRequested: root.screen.panelCloseButtonPressed()
        }
        ShadowPanel {
            isWide: root.screen.isWide
            panel: root.screen.depthPanels.shadowPanel
            isUp: root.screen.panels.currentPanel === panel
            loupe: loupe
            onCloseRequested: root.screen.panelCloseButtonPressed()
        }
        PhotoPanel {
            isWide: root.screen.isWide
            panel: root.screen.depthPanels.photoPanel
            isUp: root.screen.panels.currentPanel === panel
            onCloseRequested: root.screen.panelCloseButtonPressed()
        }
        PatternPanel {
            isWide: root.screen.isWide
            panel: root.screen.depthPanels.patternPanel
            isUp: root.screen.panels.currentPanel === panel
            onCloseRequested: root.screen.panelCloseButtonPressed()
        }
    }

    Placed {
        frame: root.screen.tabbarFrame
        TabStrip {
            anchors.fill: parent
            enabled: !root.screen.isModal
            tabbar: root.screen.tabbar
            isWide: root.screen.isWide
        }
    }

    Placed {
        frame: root.screen.topBarFrame
        EditBackgroundTopBar {
            anchors.fill: parent
            enabled: !root.screen.isModal
            screen: root.screen
        }
    }

    RgbMixer {
        anchors.fill: parent
        screen: root.screen
    }
    ColorLoupe {
        id: loupe
    }
    AlertOverlay {
        alert: root.screen.alert
    }

    EditBackgroundShortcuts {
        visible: root.enabled && !root.screen.alert.isOpen
        screen: root.screen
    }
}
