import QtQuick
import Pelmira 1.0

// The mask editor: the photo over the whole window, bars that slide off while a tool works.
ScreenPane {
    id: root

    required property ViewController screen

    enabled: !screen.alert.isOpen
    Keys.onEscapePressed: canvas.forceActiveFocus(Qt.TabFocusReason)

    readonly property bool wide: width > Theme.groupWidth
    readonly property bool compact: height < 480
    // Bars slide only once the screen stands.
    property bool settled: false

    Rectangle {
        anchors.fill: parent
        color: Theme.ground
    }

    GLKView {
        objectName: "glkView"
        anchors.fill: parent
    }

    TouchArea {
        id: canvas
        anchors.fill: parent
        screen: root.screen

        Accessible.role: Accessible.Canvas
        Accessible.name: Localized.text("mainscreen.canvas.name")
        Accessible.description: Localized.text("mainscreen.canvas.keys")
        Accessible.onPressAction: root.screen.keyboardAim.press()

        EditCanvasKeys {
            id: aimKeys
            aim: root.screen.keyboardAim
        }
        Keys.forwardTo: [aimKeys]
        onActiveFocusChanged: if (!activeFocus) root.screen.keyboardAim.leave()

        FocusRing {
            visible: canvas.visualFocus
            anchors.fill: parent
            radius: 0
        }
    }

    BackgroundButton {
        readonly property real gutter: (root.width - bottomBar.width) / 2
        readonly property bool beside: gutter >= width + 3 * Theme.grid
        readonly property real barTop: root.height - bottomBar.height

        x: beside ? bottomBar.x + bottomBar.width + 1.5 * Theme.grid
                  : bottomBar.x + bottomBar.width - width - 2 * Theme.grid
        y: beside ? barTop + bottomBar.contentHeight + bottomBar.padding - height
                  : barTop - height - 2 * Theme.grid
        model: root.screen.changeBackgroundView
        covered: brushPanel.model !== null && !beside
        text: Localized.text("mainscreen.button.background")
        onClicked: root.screen.changeBackgroundViewTapped()
    }

    // Slides out from under the bar.
    BrushPanel {
        id: brushPanel
        model: root.screen.brushAdjustView
        frame: root.screen.brushAdjustFrame
        hiddenY: root.height + 10
    }

    EditTopBar {
        id: topBar
        y: root.screen.bars.topBarTop
        width: parent.width
        screen: root.screen
        floating: root.wide
        Behavior on y {
            enabled: root.settled
            NumberAnimation { duration: Theme.barMotion; easing.type: Easing.OutCubic }
        }
    }

    EditBottomBar {
        id: bottomBar
        anchors.horizontalCenter: parent.horizontalCenter
        y: parent.height - shownHeight
        width: Math.min(parent.width, Theme.groupWidth)
        screen: root.screen
        floating: root.wide
        compact: root.compact

        property real shownHeight: Math.max(0, root.screen.bars.buttonContainerHeight + safeAreaInset)
        Behavior on shownHeight {
            enabled: root.settled
            NumberAnimation { duration: Theme.barMotion; easing.type: Easing.OutCubic }
        }
    }

    ToolTipLabel {
        toolTip: root.screen.toolTip
    }

    AlertOverlay {
        parent: root.parent
        alert: root.screen.alert
    }

    EditShortcuts {
        visible: root.enabled && !root.screen.alert.isOpen
        screen: root.screen
    }

    Binding { target: root.screen.bars; property: "wandButtonMaxY"; value: bottomBar.buttonsMaxY }
    Binding { target: root.screen.bars; property: "bottomSafeAreaInset"; value: bottomBar.safeAreaInset }
    Binding { target: root.screen.bars; property: "bottomBarWidth"; value: bottomBar.contentWidth }
    Binding { target: root.screen.bars; property: "topBarHeight"; value: topBar.height }
    Binding {
        target: root.screen.bars
        property: "buttonContainerInitialHeight"
        value: bottomBar.contentHeight
    }

    Binding {
        target: root.screen
        property: "brushPanelHeight"
        value: brushPanel.cardHeight
    }

    Timer {
        interval: 1
        running: true
        onTriggered: root.settled = true
    }
}
