import QtQuick
import Pelmira 1.0

// A panel of the background editor: it slides up to the lower edge of its container, is as high as
// its content, and closes by the button at its upper right.
Item {
    id: root

    required property bool isUp
    required property bool isWide
    property string title
    property real contentHeight: 0
    default property alias content: body.data

    signal closeRequested

    width: parent.width
    height: parent.height
    // A share, not the place: a container that grows would show the closed panels on their way.
    property real travel: isUp ? 1 : 0
    Behavior on travel { NumberAnimation { duration: 300; easing.type: Easing.OutCubic } }
    y: height * (1 - travel)
    visible: travel > 0
    enabled: isUp

    BarPanel {
        id: card
        // Its outline shows only at the upper edge, or nowhere on the ground of a wide window.
        x: root.isWide ? Theme.hairline : -1
        y: parent.height - body.height - header.height
        width: parent.width + 2 - x
        height: body.height + header.height + 1
        color: root.isWide ? Theme.sheet : Theme.panel
        border.color: root.isWide ? "transparent" : Theme.hairlineColor
    }
    Item {
        id: header
        y: card.y
        width: parent.width
        height: Theme.target

        PlLabel {
            x: 2 * Theme.grid
            width: close.x - x
            height: parent.height
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
            font.weight: Font.DemiBold
            text: root.title
        }
        IconButton {
            id: close
            anchors.right: parent.right
            anchors.rightMargin: 4
            width: Theme.target
            height: Theme.target
            tintColor: Theme.secondaryText
            iconName: "zkl-panel-close"
            text: Localized.text("backgroundeditscreen.closePanel")
            onClicked: root.closeRequested()
        }
    }
    Item {
        id: body
        y: card.y + header.height
        width: parent.width
        height: Math.min(root.contentHeight, root.height - header.height)
    }
}
