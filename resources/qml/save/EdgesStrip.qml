import QtQuick
import Pelmira 1.0

// Whether the cut-out gets clean edges: it stands over both results, since it changes both.
Item {
    id: root

    required property SaveViewController screen
    required property real contentWidth

    implicitHeight: Theme.target + Theme.grid

    Item {
        id: content
        anchors.horizontalCenter: parent.horizontalCenter
        width: root.contentWidth
        height: parent.height

        PlLabel {
            id: title
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, toggle.x - Theme.grid)
            elide: Text.ElideRight
            font.weight: Font.DemiBold
            text: root.screen.cleanEdgesLabel
        }
        PlLabel {
            anchors.verticalCenter: parent.verticalCenter
            x: title.width + 2 * Theme.grid
            width: toggle.x - x - 2 * Theme.grid
            visible: implicitWidth <= width
            color: Theme.secondaryText
            font.pixelSize: 13
            text: root.screen.cleanEdgesMessage
        }
        PlSwitch {
            id: toggle
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            model: root.screen.cleanEdgesSwitch
            name: root.screen.cleanEdgesLabel
            onRequested: isOn => root.screen.handleCleanEdgesSwitchToggled(isOn)
        }
    }
}
