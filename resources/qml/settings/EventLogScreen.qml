import QtQuick
import Pelmira 1.0

// What the log of use holds, to read and to delete; a sheet on wide windows.
ScreenPane {
    id: root

    required property EventLogVC screen

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

    PageView {
        id: view
        y: bar.height
        width: parent.width
        height: parent.height - y - erase.height - 3 * Theme.grid
        contentHeight: Math.max(height, lines.height + 4 * Theme.grid)
        // The newest line stands at the end.
        contentY: Math.max(0, contentHeight - height)
        focus: true

        PlText {
            id: lines
            x: 2 * Theme.grid
            y: 2 * Theme.grid
            width: view.width - 4 * Theme.grid
            wrapMode: Text.Wrap
            font.family: "monospace"
            font.pixelSize: 12
            lineHeight: 1.25
            text: root.screen.text
            Accessible.role: Accessible.Document
            Accessible.name: text
        }
        PlLabel {
            anchors.centerIn: parent
            width: view.width - 8 * Theme.grid
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            visible: root.screen.text === ""
            color: Theme.secondaryText
            text: Localized.text("eventlog.empty")
        }
    }

    AlertButton {
        id: erase
        x: 2 * Theme.grid
        y: parent.height - height - 2 * Theme.grid
        width: parent.width - 4 * Theme.grid
        enabled: root.screen.text !== ""
        opacity: enabled ? 1 : Theme.disabledOpacity
        text: Localized.text("eventlog.delete")
        onClicked: root.screen.deleteButtonPressed()
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
