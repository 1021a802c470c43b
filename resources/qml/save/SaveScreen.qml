import QtQuick
import Pelmira 1.0

// The save screen: both results side by side, or one above the other in a tall window.
ScreenPane {
    id: root

    required property QtObject screen

    enabled: !screen.alert.isOpen && !screen.saveProblemAlert.isOpen

    readonly property bool tall: height > width
    readonly property bool compact: height < 480
    // A low window has no room below the pictures: the card stands beside them.
    readonly property bool cardBeside: compact && !tall && heif.visible
    readonly property real gap: compact ? 1.5 * Theme.grid : 2 * Theme.grid

    Rectangle {
        anchors.fill: parent
        color: Theme.ground
    }

    Flickable {
        id: page
        y: edges.y + edges.height
        width: parent.width
        height: parent.height - y
        contentHeight: Math.max(height, minimumHeight)
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentHeight > height
        clip: true

        readonly property real minimumHeight: root.cardBeside
            ? Math.max(260, heif.implicitHeight + 2 * root.gap)
            : (root.tall ? 2 * 220 + root.gap : 260) + 2 * root.gap
              + (heif.visible ? heif.implicitHeight + root.gap : 0)

        Item {
            id: body
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(parent.width - 2 * root.gap, root.tall ? 640 : 1120)
            height: page.contentHeight

            readonly property real cardWidth: root.cardBeside ? Math.min(220, width * 0.27) : 0
            readonly property real choicesWidth: width - (root.cardBeside ? cardWidth + 2 * root.gap : 0)
            readonly property real choicesHeight: height - 2 * root.gap
                - (heif.visible && !root.cardBeside ? heif.height + root.gap : 0)
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
            HeifCard {
                id: heif
                visible: root.screen.heifContainerVisible
                narrow: root.cardBeside
                x: root.cardBeside ? body.width - width : Math.round((body.width - width) / 2)
                y: root.cardBeside ? Math.max(root.gap, Math.round((body.height - height) / 2))
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

    SaveTopBar {
        id: topBar
        width: parent.width
        screen: root.screen
    }

    ProgressOverlay {
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
            sequence: "Ctrl+Shift+S"
            autoRepeat: false
            enabled: keys.visible
            onActivated: root.screen.jpgSaveButtonPressed()
        }
    }
}
