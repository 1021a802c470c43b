import QtQuick
import Pelmira 1.0

// Cancel at the left, save at the right.
Item {
    id: root

    required property EditBackgroundVC screen

    BarPanel {
        anchors.fill: parent
        // Its outline shows only at the lower edge.
        anchors.margins: -1
        anchors.bottomMargin: 0
    }
    BarTextButton {
        id: cancel
        anchors.left: parent.left
        height: parent.height
        opacity: enabled ? 1 : Theme.disabledOpacity
        text: Localized.text("backgroundeditscreen.cancel")
        onClicked: root.screen.cancelButtonPressed()
    }
    PlLabel {
        anchors.centerIn: parent
        width: parent.width - 2 * Math.max(cancel.width, save.width)
        horizontalAlignment: Text.AlignHCenter
        elide: Text.ElideRight
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 12
        font.pixelSize: Theme.titleSize
        font.weight: Font.DemiBold
        text: root.screen.title
    }
    BarTextButton {
        id: save
        anchors.right: parent.right
        height: parent.height
        enabled: root.screen.saveButton.enabled
        opacity: enabled ? 1 : Theme.disabledOpacity
        text: Localized.text("generic.save")
        key: "Ctrl+S"
        isAction: true
        onClicked: root.screen.saveButtonPressed()
    }
}
