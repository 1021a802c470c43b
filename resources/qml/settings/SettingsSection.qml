import QtQuick
import Pelmira 1.0

// A group of rows on a card, with words above and below it.
Column {
    id: root

    required property string header
    required property string footer
    required property var rows
    required property InterfaceButton eventLogSwitch

    signal tapped(int row, Item cell)
    signal switched(bool on)
    signal reached(Item cell)

    spacing: Theme.grid

    PlText {
        x: 2 * Theme.grid
        width: parent.width - 4 * Theme.grid
        visible: text !== ""
        elide: Text.ElideRight
        font.pixelSize: 13
        font.weight: Font.DemiBold
        color: Theme.secondaryText
        text: root.header
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    Rectangle {
        width: parent.width
        height: cells.height
        radius: Theme.buttonRadius
        color: Theme.raised

        Column {
            id: cells
            width: parent.width
            Repeater {
                model: root.rows
                SettingsCell {
                    id: cell
                    required property var modelData
                    required property int index
                    width: cells.width
                    iconName: modelData.icon
                    text: modelData.title
                    toggle: modelData.cellId === "eventLog" ? root.eventLogSwitch : null
                    isLast: index === root.rows.length - 1
                    onClicked: root.tapped(index, cell)
                    onSwitched: on => root.switched(on)
                    onReached: root.reached(cell)
                }
            }
        }
    }
    PlLabel {
        x: 2 * Theme.grid
        width: parent.width - 4 * Theme.grid
        visible: text !== ""
        wrapMode: Text.Wrap
        font.pixelSize: 13
        color: Theme.secondaryText
        text: root.footer
    }
}
