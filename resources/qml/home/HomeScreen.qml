import QtQuick
import Pelmira 1.0

// The first screen: what the application does, and the ways to a photo. It lies on the window's own
// ground.
ScreenPane {
    id: root

    required property NewHomeScreenVC screen

    readonly property bool wide: width > height && width > 640
    readonly property bool busy: screen.loader.busy
    readonly property bool asksNothing: screen.resumeView === null && !screen.alert.isOpen
                                        && screen.permissionOverlayView === null

    enabled: asksNothing

    DropArea {
        id: drop
        anchors.fill: parent
        keys: ["text/uri-list"]
        onDropped: event => root.screen.openUrls(event.urls)
    }
    Rectangle {
        anchors.fill: parent
        anchors.margins: Theme.grid
        visible: drop.containsDrag
        radius: Theme.barRadius
        color: Theme.hover
        border.width: 2
        border.color: Theme.buttonBlue
    }

    // Beside each other on wide windows, else one above the other.
    Item {
        id: content
        anchors.centerIn: parent
        width: root.wide ? hero.width + 7 * Theme.grid + column.width : column.width
        height: root.wide ? Math.max(hero.height, column.height)
                          : hero.height + 4 * Theme.grid + column.height

        IconView {
            id: hero
            readonly property real room: root.wide ? Math.min(root.height - 6 * Theme.grid, root.width * 0.38)
                                                   : Math.min(root.width - 8 * Theme.grid, root.height * 0.4)
            x: root.wide ? 0 : (content.width - width) / 2
            y: root.wide ? (content.height - height) / 2 : 0
            width: Math.min(room, 400)
            height: width * 280 / 320
            source: "icons/hero.svg"
        }

        Column {
            id: column
            x: content.width - width
            y: content.height - height - (root.wide ? (content.height - height) / 2 : 0)
            width: Math.min((root.wide ? root.width * 0.5 : root.width) - 6 * Theme.grid, 340)
            spacing: 1.5 * Theme.grid

            PlLabel {
                width: parent.width
                horizontalAlignment: root.wide ? Text.AlignLeft : Text.AlignHCenter
                font.pixelSize: 40
                font.weight: Font.Bold
                font.letterSpacing: -0.5
                text: "Pelmira"
            }
            PlLabel {
                width: parent.width
                horizontalAlignment: root.wide ? Text.AlignLeft : Text.AlignHCenter
                wrapMode: Text.Wrap
                lineHeight: 1.2
                font.pixelSize: Theme.titleSize
                color: Theme.secondaryText
                text: Localized.text("homescreen.tagline")
            }
            Item { width: 1; height: Theme.grid }
            WideButton {
                width: parent.width
                isAction: true
                available: !root.busy
                iconName: "open-photo"
                text: Localized.text(root.busy ? "homescreen.button.opening" : "homescreen.button.photo")
                onClicked: root.screen.photoButtonTapped()
            }
            WideButton {
                width: parent.width
                available: !root.busy
                iconName: "take-photo"
                text: Localized.text("homescreen.button.camera")
                onClicked: root.screen.cameraButtonTapped()
            }
            PlLabel {
                width: parent.width
                visible: root.width >= 600 && root.height > 480
                horizontalAlignment: root.wide ? Text.AlignLeft : Text.AlignHCenter
                wrapMode: Text.Wrap
                color: Theme.secondaryText
                text: Localized.text("homescreen.drop")
            }
        }
    }

    NoticeStrip {
        anchors.horizontalCenter: parent.horizontalCenter
        // Below the way to the settings, where it would reach it.
        y: x + width < settings.x ? 2 * Theme.grid : settings.y + settings.height + Theme.grid
        maximumWidth: Math.min(root.width - 4 * Theme.grid, 560)
        text: root.screen.loader.message
    }

    SettingsButton {
        id: settings
        x: parent.width - width - 20
        y: 20
        visible: root.screen.settingsButton !== null
        onClicked: root.screen.settingsButtonTapped()
    }

    component Key: Shortcut {
        enabled: root.visible && root.enabled && !root.busy && root.asksNothing
    }
    Key {
        sequences: [StandardKey.Paste]
        onActivated: root.screen.paste()
    }
    Key {
        sequences: [StandardKey.Open]
        onActivated: root.screen.browseButtonTapped()
    }
    Key {
        sequences: [StandardKey.Preferences, "Ctrl+,"]
        onActivated: root.screen.settingsButtonTapped()
    }

    OnDemand {
        parent: root.parent
        wanted: root.screen.resumeView !== null
        file: "ResumeOverlay.qml"
        onLoaded: {
            item.isCovered = Qt.binding(() => root.screen.permissionOverlayView !== null);
            item.model = Qt.binding(() => root.screen.resumeView);
        }
    }
    OnDemand {
        parent: root.parent
        wanted: root.screen.alert.isOpen
        file: "AlertOverlay.qml"
        properties: ({ alert: root.screen.alert })
    }
    OnDemand {
        parent: root.parent
        wanted: root.screen.permissionOverlayView !== null
        file: "PermissionOverlay.qml"
        onLoaded: item.model = Qt.binding(() => root.screen.permissionOverlayView)
    }
}
