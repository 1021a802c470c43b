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

    Flickable {
        id: view
        y: bar.height
        width: parent.width
        height: parent.height - y - 2
        contentWidth: width
        contentHeight: column.height + 4 * Theme.grid
        boundsBehavior: Flickable.DragOverBounds
        flickableDirection: Flickable.VerticalFlick
        clip: true

        // A row that the keyboard reaches is brought into view.
        function show(item) {
            const top = item.mapToItem(column, 0, 0).y;
            const highest = Math.max(0, contentHeight - height);
            if (top < contentY)
                contentY = Math.max(0, top - Theme.grid);
            else if (top + item.height > contentY + height)
                contentY = Math.min(highest, top + item.height + 5 * Theme.grid - height);
        }

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
                    onReached: cell => view.show(cell)
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
