import QtQuick
import Pelmira 1.0

// The tools within the thumb's reach, and below them the dial of the chosen tool.
Item {
    id: root

    required property ViewController screen
    required property bool floating
    required property bool compact

    // The bar's height over the safe area, and the lower edge of the buttons' row.
    readonly property real contentHeight: row.y + row.height + (compact ? 36 : 44)
    readonly property real buttonsMaxY: row.y + row.height
    readonly property real buttonHeight: compact ? Theme.target : 56
    // Under the dial, before the window's edge or the floating panel's.
    readonly property real padding: Theme.grid
    readonly property real safeAreaInset: padding + (floating ? (compact ? 8 : 16) : 0)

    // The dial stands clear of the panel's round corners.
    readonly property real contentWidth: width - 4 * Theme.grid

    height: contentHeight + safeAreaInset

    BarPanel {
        // Docked, its lower corners and outline lie outside the window.
        x: root.floating ? 0 : -1
        width: root.width - 2 * x
        height: root.contentHeight + root.padding + (root.floating ? 0 : Theme.barRadius)
        radius: Theme.barRadius
    }

    Row {
        id: row

        readonly property real cell: Math.min(96, Math.floor((root.width - 8) / children.length))

        anchors.horizontalCenter: parent.horizontalCenter
        y: root.compact ? 4 : 6

        IconButton {
            width: row.cell
            height: root.buttonHeight
            model: root.screen.wandButton
            iconName: "wand"
            text: Localized.text("mainscreen.tooltip.magicWand")
            caption: root.compact ? "" : Localized.text("mainscreen.caption.wand")
            key: "W"
            toggles: true
            onClicked: root.screen.wandButtonPressed()
        }
        IconButton {
            width: row.cell
            height: root.buttonHeight
            model: root.screen.erasorButton
            iconName: "erase"
            text: Localized.text("mainscreen.tooltip.erase")
            caption: root.compact ? "" : Localized.text("mainscreen.caption.erase")
            key: "E"
            toggles: true
            onClicked: root.screen.erasorButtonPressed()
        }
        IconButton {
            width: row.cell
            height: root.buttonHeight
            model: root.screen.replaceButton
            iconName: "replace"
            text: Localized.text("mainscreen.tooltip.replace")
            caption: root.compact ? "" : Localized.text("mainscreen.caption.replace")
            key: "R"
            toggles: true
            onClicked: root.screen.replaceButtonPressed()
        }
        IconButton {
            width: row.cell
            height: root.buttonHeight
            model: root.screen.brushAdjustButton
            iconName: "brush-settings"
            text: Localized.text("mainscreen.button.brush")
            caption: root.compact ? "" : Localized.text("mainscreen.caption.brush")
            onClicked: root.screen.brushButtonPressed()
        }
        IconButton {
            width: row.cell
            height: root.buttonHeight
            model: root.screen.invertMaskButton
            iconName: "invert"
            text: Localized.text("mainscreen.tooltip.invertMask")
            caption: root.compact ? "" : Localized.text("mainscreen.caption.invert")
            key: "I"
            onClicked: root.screen.invertMaskButtonPressed()
        }
        IconButton {
            width: row.cell
            height: root.buttonHeight
            model: root.screen.showMaskButton
            iconName: "red-mask"
            text: Localized.text("mainscreen.button.redMask")
            caption: root.compact ? "" : Localized.text("mainscreen.caption.redMask")
            key: "M"
            toggles: true
            onClicked: root.screen.showMaskButtonPressed()
        }
        IconButton {
            width: row.cell
            height: root.buttonHeight
            model: root.screen.undoButton
            iconName: "undo"
            text: Localized.text("mainscreen.tooltip.undo")
            caption: root.compact ? "" : Localized.text("mainscreen.caption.undo")
            key: "Ctrl+Z"
            onClicked: root.screen.undoButtonPressed()
        }
    }

    Repeater {
        model: root.screen.dial ? [root.screen.dial] : []
        ScrollDial {
            required property ZKLScrollDial modelData
            dial: modelData
            x: 2 * Theme.grid + root.screen.bars.dialFrame.x
            y: root.screen.bars.dialFrame.y
            width: root.screen.bars.dialFrame.width
            height: root.screen.bars.dialFrame.height
            reachAbove: root.compact ? 4 : Theme.grid
            reachBelow: root.padding
        }
    }
}
