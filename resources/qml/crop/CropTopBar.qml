import QtQuick
import Pelmira 1.0

// Leaving at the left, the result at the right.
Item {
    id: root

    required property TOCropViewController screen
    required property real insetAbove

    BarPanel {
        anchors.fill: parent
        // Its outline shows only at the lower edge.
        anchors.margins: -1
        anchors.bottomMargin: 0
        color: Qt.alpha(root.screen.panelColor, 0.72)
    }

    Item {
        y: root.insetAbove
        width: parent.width
        height: parent.height - y

        BarTextButton {
            id: cancel
            anchors.left: parent.left
            height: parent.height
            text: Localized.text("crop.button.cancel")
            key: "Esc"
            onClicked: root.screen.cancelButtonTapped()
        }
        PlLabel {
            anchors.centerIn: parent
            width: parent.width - 2 * Math.max(cancel.width, done.width)
            horizontalAlignment: Text.AlignHCenter
            elide: Text.ElideRight
            font.pixelSize: Theme.titleSize
            font.weight: Font.DemiBold
            text: Localized.text("crop.title")
        }
        BarTextButton {
            id: done
            anchors.right: parent.right
            height: parent.height
            text: Localized.text("crop.button.done")
            key: "Enter"
            isAction: true
            onClicked: root.screen.doneButtonTapped()
        }
    }
}
