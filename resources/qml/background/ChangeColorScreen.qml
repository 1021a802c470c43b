import QtQuick
import Pelmira 1.0

// The cut-out over the colour that is being chosen, and the pickers: below it in a tall window,
// beside it in a wide one.
ScreenPane {
    id: root

    required property ChangeColorVC screen

    readonly property bool isWide: width > height
    readonly property real columnWidth: Math.max(280, Math.min(380, width * 0.34))
    readonly property real margin: 2 * Theme.grid
    // Enter belongs to a button that the keyboard has gone to.
    readonly property Item focused: Window.activeFocusItem
    readonly property bool buttonHasKeyboard: focused !== null && focused.visualFocus === true

    Rectangle {
        anchors.fill: parent
        color: Theme.ground
    }

    Item {
        id: topBar
        width: parent.width
        height: root.height < 480 ? 48 : 56

        BarPanel {
            anchors.fill: parent
            // Its outline shows only at the lower edge.
            anchors.margins: -1
            anchors.bottomMargin: 0
        }
        BarTextButton {
            id: cancel
            anchors.left: parent.left
            height: parent.height
            text: Localized.text("backgroundeditscreen.cancel")
            key: "Esc"
            onClicked: root.screen.cancelButtonPressed()
        }
        PlLabel {
            anchors.centerIn: parent
            width: parent.width - 2 * Math.max(cancel.width, done.width)
            horizontalAlignment: Text.AlignHCenter
            elide: Text.ElideRight
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 12
            font.pixelSize: Theme.titleSize
            font.weight: Font.DemiBold
            text: root.screen.title
        }
        BarTextButton {
            id: done
            anchors.right: parent.right
            height: parent.height
            text: Localized.text("generic.done")
            key: "Enter"
            isAction: true
            onClicked: root.screen.doneButtonPressed()
        }
    }

    Item {
        id: container
        x: root.margin
        y: topBar.height + root.margin
        width: (root.isWide ? root.width - root.columnWidth : root.width) - 2 * root.margin
        height: (root.isWide ? root.height : pickers.y) - y - root.margin

        readonly property size area: Qt.size(width, height)
        onAreaChanged: root.screen.containerSize = area
        Component.onCompleted: root.screen.containerSize = area

        Rectangle {
            anchors.centerIn: parent
            width: root.screen.imageViewSize.width
            height: root.screen.imageViewSize.height
            color: root.screen.backgroundColor.valid ? root.screen.backgroundColor : "white"
            border.color: Theme.hairlineColor
            border.width: 0
            ImageView {
                anchors.fill: parent
                mipmap: true
                image: root.screen.image
            }
        }
    }

    ColorPickers {
        id: pickers
        x: root.isWide ? root.width - root.columnWidth : root.margin
        y: root.isWide ? Math.max(topBar.height + root.margin, (root.height + topBar.height - height) / 2)
                       : root.height - height - root.margin
        width: root.isWide ? root.columnWidth - root.margin : root.width - 2 * root.margin
        height: root.isWide ? Math.min(360, root.height - topBar.height - 2 * root.margin)
                            : Math.max(180, Math.min(280, root.height * 0.32))
        line: root.screen.colorPickerLine
        picker: root.screen.colorPicker
        loupe: loupe
    }
    ColorLoupe {
        id: loupe
    }

    Shortcut {
        sequences: ["Return", "Enter"]
        autoRepeat: false
        enabled: root.enabled && !root.buttonHasKeyboard
        onActivated: root.screen.doneButtonPressed()
    }
    Shortcut {
        sequences: [StandardKey.Cancel]
        autoRepeat: false
        enabled: root.enabled
        onActivated: root.screen.cancelButtonPressed()
    }
}
