import QtQuick
import Pelmira 1.0

// The main application: its icon, name, rating, and the way to it. In a line where it is low.
Item {
    id: root

    required property ZKLCrossPromoteVC screen
    property bool low: false

    readonly property CrossPromoteItem entry: screen.mainEntry

    Row {
        anchors.centerIn: parent
        spacing: 2.5 * Theme.grid

        CrossPromoteIcon {
            anchors.verticalCenter: parent.verticalCenter
            width: root.low ? 48 : 96
            height: width
            entry: root.entry
        }
        Grid {
            id: words
            anchors.verticalCenter: parent.verticalCenter
            columns: root.low ? 3 : 1
            spacing: root.low ? 2.5 * Theme.grid : 1.25 * Theme.grid
            verticalItemAlignment: Grid.AlignVCenter

            PlLabel {
                width: Math.min(implicitWidth, root.width - (root.low ? 400 : 180))
                elide: Text.ElideRight
                font.pixelSize: 20
                font.weight: Font.DemiBold
                text: root.entry.name
            }
            ImageView {
                visible: root.screen.mainAppStarsText !== ""
                width: 110
                height: 20
                image: root.screen.mainAppStars
                Accessible.role: Accessible.StaticText
                Accessible.name: root.screen.mainAppStarsText
            }
            CapsuleButton {
                available: root.entry.canBeOpened
                width: Math.max(112, implicitWidth)
                text: Localized.text("moreapps.download")
                name: text + " " + root.entry.name
                onClicked: root.screen.mainAppDownloadButtonPressed()
            }
        }
    }
    Rectangle {
        y: parent.height - height
        width: parent.width
        height: Theme.hairline
        color: Theme.hairlineColor
    }
}
