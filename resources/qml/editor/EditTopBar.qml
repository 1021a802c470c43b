import QtQuick
import Pelmira 1.0

// Leaving at the left, the result at the right. On wide windows the buttons float over the photo.
Item {
    id: root

    required property ViewController screen
    required property bool floating

    height: 56

    BarPanel {
        visible: !root.floating
        anchors.fill: parent
        // Its outline shows only at the lower edge.
        anchors.margins: -1
        anchors.bottomMargin: 0
    }

    Item {
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width, Theme.groupWidth)
        height: parent.height

        BarPanel {
            visible: root.floating
            anchors.fill: back
            radius: height / 2
        }
        IconButton {
            id: back
            x: root.floating ? 0 : Theme.grid / 2
            anchors.verticalCenter: parent.verticalCenter
            model: root.screen.backButton
            iconName: "back"
            text: Localized.text("mainscreen.button.back")
            tipAbove: false
            onClicked: root.screen.backButtonPressed()
        }
        BarPanel {
            visible: root.floating
            anchors.fill: help
            radius: height / 2
        }
        IconButton {
            id: help
            anchors.right: save.left
            anchors.rightMargin: root.floating ? 1.5 * Theme.grid : Theme.grid / 2
            anchors.verticalCenter: parent.verticalCenter
            model: root.screen.helpButton
            iconName: "help"
            text: Localized.text("mainscreen.button.help")
            key: "F1"
            tipAbove: false
            onClicked: root.screen.helpButtonPressed()
        }
        CapsuleButton {
            id: save
            anchors.right: parent.right
            anchors.rightMargin: root.floating ? 0 : 2 * Theme.grid
            anchors.verticalCenter: parent.verticalCenter
            model: root.screen.saveButton
            iconName: "save"
            text: Localized.text("mainscreen.caption.save")
            name: Localized.text("mainscreen.button.saveCutOut")
            key: "Ctrl+S"
            onClicked: root.screen.saveButtonPressed()
        }
    }
}
