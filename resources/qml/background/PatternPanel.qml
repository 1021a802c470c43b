import QtQuick
import QtQuick.Templates as T
import Pelmira 1.0

// The patterns: two rows that scroll sideways, or a grid that scrolls down beside the canvas.
SlidingPanel {
    id: root

    required property BGEPatternView panel

    readonly property real spacing: Theme.grid
    // Beside the canvas as many as fit; below it two rows.
    readonly property int columns: Math.max(3, Math.floor((width - 4 * Theme.grid) / 84))
    readonly property real side: isWide ? Math.floor((width - 4 * Theme.grid - (columns - 1) * spacing) / columns)
                                        : Math.floor((contentHeight - spacing - 12) / 2)

    title: Localized.text("backgroundeditscreen.patterns")
    contentHeight: isWide ? height - Theme.target : Math.min(176, height - Theme.target)

    GridView {
        id: grid
        anchors.fill: parent
        anchors.leftMargin: root.isWide ? 2 * Theme.grid : 0
        // Rows run to the panel's edges.
        leftMargin: root.isWide ? 0 : 2 * Theme.grid
        rightMargin: root.isWide ? 0 : 2 * Theme.grid - root.spacing
        clip: true
        flow: root.isWide ? GridView.FlowLeftToRight : GridView.FlowTopToBottom
        cellWidth: root.side + root.spacing
        cellHeight: root.side + root.spacing
        boundsBehavior: Flickable.DragOverBounds
        cacheBuffer: 2 * cellWidth
        model: root.panel

        delegate: T.AbstractButton {
            id: control

            required property BGEPatternCell cell
            required property int index

            width: root.side
            height: root.side
            focusPolicy: Qt.TabFocus
            Accessible.name: Localized.text("backgroundeditscreen.patternpanel.pattern").arg(index + 1)
            Accessible.checkable: true
            Accessible.checked: cell.mySelected
            Keys.onReturnPressed: clicked()
            Keys.onEnterPressed: clicked()
            onClicked: root.panel.didSelectItem(index)
            onVisualFocusChanged: if (visualFocus) grid.positionViewAtIndex(index, GridView.Contain)
            scale: pressed ? 0.95 : 1
            Behavior on scale { NumberAnimation { duration: Theme.quick } }

            background: Rectangle {
                radius: control.cell.cornerRadius
                color: Theme.raised
            }
            contentItem: Item {
                ImageView {
                    anchors.fill: parent
                    radius: control.cell.cornerRadius
                    image: control.cell.image
                }
                Rectangle {
                    anchors.fill: parent
                    radius: control.cell.cornerRadius
                    color: "transparent"
                    border.width: control.cell.borderWidth
                    border.color: control.cell.mySelected ? control.cell.borderColor : "transparent"
                }
                FocusRing {
                    visible: control.visualFocus
                    anchors.fill: parent
                    anchors.margins: -2
                }
            }
        }
    }
}
