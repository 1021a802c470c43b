import QtQuick
import Pelmira 1.0

// The settings: sections of rows, and what the screen asks or tells; a sheet on wide windows.
ScreenPane {
    id: root

    required property SettingsVC screen

    enabled: !screen.alert.isOpen

    SheetGround {
        anchors.fill: parent
    }
    SheetTopBar {
        id: bar
        width: parent.width
        title: root.screen.title
        onDonePressed: root.screen.handleDonePressed()
    }

    PageView {
        id: view
        y: bar.height
        width: parent.width
        height: parent.height - y - 2
        contentHeight: column.height + 4 * Theme.grid

        Column {
            id: column
            x: Math.round((view.width - width) / 2)
            y: 1.5 * Theme.grid
            width: Math.min(view.width - 4 * Theme.grid, Theme.groupWidth)
            spacing: 2 * Theme.grid

            Repeater {
                model: root.screen.sections
                SettingsSection {
                    id: section
                    required property var modelData
                    required property int index
                    width: column.width
                    header: modelData.header
                    footer: modelData.footer
                    rows: modelData.rows
                    eventLogSwitch: root.screen.eventLogSwitch
                    onTapped: (row, cell) =>
                        root.screen.didSelectRow(row, index, cell.mapToItem(root.parent, 0, 0, cell.width, cell.height))
                    onSwitched: on => root.screen.handleEventLogSwitchToggled(on)
                    onReached: cell => view.reveal(cell)
                }
            }
        }
    }

    ProgressOverlay {
        hud: root.screen.progressHUD
    }
    AlertOverlay {
        parent: root.parent
        alert: root.screen.alert
    }

    Shortcut {
        sequences: [StandardKey.Cancel]
        enabled: root.enabled && !root.screen.alert.isOpen
        onActivated: root.screen.handleDonePressed()
    }
}
