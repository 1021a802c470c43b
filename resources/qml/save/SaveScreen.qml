import QtQuick
import Pelmira 1.0

// The save screen: both results side by side, or one above the other in a tall window.
ScreenPane {
    id: root

    required property SaveViewController screen

    enabled: !screen.alert.isOpen && !screen.saveProblemAlert.isOpen

    readonly property bool tall: height > width
    readonly property bool compact: height < 480
    // A low window has no room below the pictures: the card stands beside them.
    readonly property bool cardBeside: compact && !tall
    readonly property real gap: compact ? 1.5 * Theme.grid : 2 * Theme.grid

    Rectangle {
        anchors.fill: parent
        color: Theme.ground
    }

    Flickable {
        id: page
        y: edges.y + edges.height
        width: parent.width
        height: parent.height - y - (offers.visible ? offers.height + root.gap : 0)
        contentHeight: Math.max(height, minimumHeight)
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentHeight > height
        clip: true

        readonly property real minimumHeight: root.cardBeside
            ? Math.max(260, body.columnHeight + 2 * root.gap)
            : (root.tall ? 2 * 220 + root.gap : 260) + 2 * root.gap
              + edit.height + root.gap
              + (heif.visible ? heif.implicitHeight + root.gap : 0)

        Item {
            id: body
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(parent.width - 2 * root.gap, root.tall ? 640 : 1120)
            height: page.contentHeight

            readonly property real cardWidth: root.cardBeside ? Math.min(220, width * 0.27) : 0
            readonly property real choicesWidth: width - (root.cardBeside ? cardWidth + 2 * root.gap : 0)
            readonly property real choicesHeight: height - 2 * root.gap
                - (root.cardBeside ? 0 : edit.height + root.gap
                   + (heif.visible ? heif.height + root.gap : 0))
            // What stands beside the pictures, as a whole in the middle.
            readonly property real columnHeight: edit.height + (heif.visible ? root.gap + heif.height : 0)
            readonly property real columnTop: Math.max(root.gap, Math.round((height - columnHeight) / 2))
            readonly property real choiceWidth: root.tall ? choicesWidth
                : (choicesWidth - 2 * root.gap) / 2
            readonly property real choiceHeight: root.tall ? (choicesHeight - 1.5 * root.gap) / 2
                : choicesHeight

            SaveChoice {
                y: root.gap
                width: body.choiceWidth
                height: body.choiceHeight
                compact: root.compact
                preview: root.screen.jpgImageView
                label: root.screen.whiteBackgroundLabel
                colorButton: root.screen.colorChangeButton
                onColorRequested: root.screen.changeColorButtonPressed()
                saveButton: root.screen.saveJPGButton
                otherButton: root.screen.otherJPGButton
                saveText: root.screen.title
                otherText: Localized.text("savescreen.button.other")
                saveName: Localized.text("savescreen.button.saveJPG")
                otherName: Localized.text("savescreen.button.otherJPG")
                saveKey: "Ctrl+Shift+S"
                onSaveRequested: root.screen.jpgSaveButtonPressed()
                onPhotoTapped: root.screen.jpgPhotoTapped()
                onOtherRequested: frame => root.screen.jpgOtherButtonPressed(frame)
            }
            SaveChoice {
                x: root.tall ? 0 : body.choiceWidth + 2 * root.gap
                y: root.gap + (root.tall ? body.choiceHeight + 1.5 * root.gap : 0)
                width: body.choiceWidth
                height: body.choiceHeight
                compact: root.compact
                preview: root.screen.pngImageView
                showsGrid: true
                label: root.screen.transparentBackgroundLabel
                format: root.screen.transparentFormatLabel
                saveButton: root.screen.savePNGButton
                otherButton: root.screen.otherPNGButton
                saveText: root.screen.title
                otherText: Localized.text("savescreen.button.other")
                saveName: Localized.text("savescreen.button.savePNG")
                otherName: Localized.text("savescreen.button.otherPNG")
                saveKey: "Ctrl+S"
                onSaveRequested: root.screen.pngSaveButtonPressed()
                onPhotoTapped: root.screen.pngPhotoTapped()
                onOtherRequested: frame => root.screen.pngOtherButtonPressed(frame)
            }
            CapsuleButton {
                id: edit
                x: root.cardBeside ? body.width - body.cardWidth : Math.round((body.width - width) / 2)
                y: root.cardBeside ? body.columnTop
                    : body.height - root.gap - height - (heif.visible ? heif.height + root.gap : 0)
                width: root.cardBeside ? body.cardWidth : Math.max(220, implicitWidth)
                model: root.screen.editBackgroundButton
                iconName: "edit-background"
                text: Localized.text("savescreen.button.editbackground")
                key: "Ctrl+B"
                onClicked: root.screen.editBackgroundButtonPressed()
            }
            HeifCard {
                id: heif
                visible: root.screen.heifContainerVisible
                narrow: root.cardBeside
                x: root.cardBeside ? body.width - width : Math.round((body.width - width) / 2)
                y: root.cardBeside ? edit.y + edit.height + root.gap
                                   : body.height - root.gap - height
                width: root.cardBeside ? body.cardWidth : Math.min(body.width, 560)
                height: implicitHeight
                screen: root.screen
            }
        }
    }

    EdgesStrip {
        id: edges
        y: topBar.height
        width: parent.width
        contentWidth: body.width
        screen: root.screen
    }

    RateMoreRow {
        id: offers
        x: root.gap
        y: parent.height - height - root.gap
        width: parent.width - 2 * root.gap
        height: 52
        container: root.screen.rateMoreContainerView
    }

    SaveTopBar {
        id: topBar
        width: parent.width
        screen: root.screen
    }

    // On the window itself: it stays where it is while the background editor above this screen goes.
    ProgressOverlay {
        parent: root.Window.contentItem ?? root
        z: 1
        hud: root.screen.progressHUD
    }
    AlertOverlay {
        parent: root.parent
        alert: root.screen.alert
    }
    AlertOverlay {
        parent: root.parent
        alert: root.screen.saveProblemAlert
    }

    Item {
        id: keys
        visible: root.enabled && !root.screen.alert.isOpen && !root.screen.saveProblemAlert.isOpen

        Shortcut {
            sequences: [StandardKey.Cancel]
            enabled: keys.visible
            onActivated: root.screen.doneButtonPressed()
        }
        Shortcut {
            sequence: "Ctrl+S"
            autoRepeat: false
            enabled: keys.visible
            onActivated: root.screen.pngSaveButtonPressed()
        }
        Shortcut {
            sequence: "Ctrl+B"
            autoRepeat: false
            enabled: keys.visible
            onActivated: root.screen.editBackgroundButtonPressed()
        }
        Shortcut {
            sequence: "Ctrl+Shift+S"
            autoRepeat: false
            enabled: keys.visible
            onActivated: root.screen.jpgSaveButtonPressed()
        }
    }
}
