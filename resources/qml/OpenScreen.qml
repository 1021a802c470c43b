import QtQuick
import QtQuick.Dialogs
import Pelmira 1.0

// The first screen: one button, and the whole window as a place to drop a photo.
Item {
    id: root

    required property QtObject screen

    Rectangle {
        anchors.fill: parent
        color: Theme.ground
    }

    DropArea {
        id: drop
        anchors.fill: parent
        keys: ["text/uri-list"]
        onDropped: event => root.screen.choosePhoto(event.urls[0])
    }

    Rectangle {
        anchors.fill: parent
        anchors.margins: 2 * Theme.grid
        radius: Theme.barRadius
        color: drop.containsDrag ? Theme.hover : "transparent"
        border.width: 2 * Theme.hairline
        border.color: drop.containsDrag ? Theme.buttonBlue : Theme.hairlineColor
    }

    Column {
        anchors.centerIn: parent
        width: Math.min(parent.width - 8 * Theme.grid, 420)
        spacing: 2 * Theme.grid

        IconView {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 56
            height: 56
            source: "icons/wand.svg"
            tintColor: Theme.selected
        }
        PlText {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            font.pixelSize: 26
            font.weight: Font.DemiBold
            text: Localized.text("openscreen.title")
        }
        PlText {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            lineHeight: 1.25
            color: Theme.secondaryText
            text: Localized.text("openscreen.hint")
        }
        Item { width: 1; height: Theme.grid }
        CapsuleButton {
            z: 1 // its hover tip lies over the line below
            anchors.horizontalCenter: parent.horizontalCenter
            model: openModel
            iconName: "open-photo"
            text: Localized.text(root.screen.busy ? "openscreen.opening" : "openscreen.open")
            key: "Ctrl+O"
            onClicked: dialog.open()
        }
        PlText {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            color: Theme.secondaryText
            text: Localized.text("openscreen.drop")
        }
    }

    QtObject {
        id: openModel
        readonly property bool enabled: !root.screen.busy
    }

    NoticeStrip {
        anchors.horizontalCenter: parent.horizontalCenter
        y: 4 * Theme.grid
        maximumWidth: Math.min(root.width - 8 * Theme.grid, 560)
        text: root.screen.message
    }

    Shortcut {
        sequences: [StandardKey.Open]
        enabled: root.visible && !root.screen.busy && root.screen.resumeView === null
        onActivated: dialog.open()
    }

    ResumeOverlay {
        model: root.screen.resumeView
    }

    FileDialog {
        id: dialog
        onAccepted: root.screen.choosePhoto(selectedFile)
    }
}
