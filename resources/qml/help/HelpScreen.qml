import QtQuick
import Pelmira 1.0

// The help page, with its title and a way out above; a sheet on wide windows.
ScreenPane {
    id: root

    required property ZKLHelpController screen

    enabled: !screen.alert.isOpen

    SheetGround {
        anchors.fill: parent
    }
    SheetTopBar {
        id: bar
        width: parent.width
        title: root.screen.title
        onDonePressed: root.screen.doneButtonPressed()
    }
    Spinner {
        anchors.right: parent.right
        anchors.rightMargin: 2 * Theme.grid
        anchors.verticalCenter: bar.verticalCenter
        width: Theme.icon
        height: Theme.icon
        running: root.screen.isLoading
    }

    PageView {
        id: view
        y: bar.height
        width: parent.width
        height: parent.height - y - 2
        contentHeight: text.height + 5 * Theme.grid
        focus: true

        // An editor that can't be edited tells where in the text a place is.
        TextEdit {
            id: text
            x: Math.round((view.width - width) / 2)
            y: 2 * Theme.grid
            width: Math.min(view.width - 5 * Theme.grid, Theme.groupWidth)
            readOnly: true
            selectByMouse: false
            activeFocusOnPress: false
            textFormat: TextEdit.RichText
            wrapMode: TextEdit.Wrap
            renderType: Text.NativeRendering
            color: Theme.text
            font.pixelSize: Theme.bodySize
            text: root.screen.page
            Accessible.role: Accessible.Document
            Accessible.name: root.screen.title
            onLinkActivated: link => {
                const position = root.screen.positionOfLink(link);
                if (position >= 0)
                    view.scrollTo(y + positionToRectangle(position).y - Theme.grid);
            }
            HoverHandler {
                cursorShape: text.hoveredLink !== "" ? Qt.PointingHandCursor : Qt.ArrowCursor
            }
        }
    }

    AlertOverlay {
        parent: root.parent
        alert: root.screen.alert
    }

    Shortcut {
        sequences: [StandardKey.Cancel]
        enabled: root.enabled && !root.screen.alert.isOpen
        onActivated: root.screen.doneButtonPressed()
    }
}
