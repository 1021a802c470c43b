import QtQuick
import Pelmira 1.0

// Home at the left, which gives the work up; back to the work at the right.
Item {
    id: root

    required property SaveViewController screen

    height: 56

    BarPanel {
        anchors.fill: parent
        // Its outline shows only at the lower edge.
        anchors.margins: -1
        anchors.bottomMargin: 0
    }
    BarTextButton {
        id: home
        anchors.left: parent.left
        height: parent.height
        text: root.screen.homeTitle
        onClicked: root.screen.homeButtonTapped()
    }
    PlLabel {
        anchors.centerIn: parent
        width: parent.width - 2 * Math.max(home.width, done.width)
        horizontalAlignment: Text.AlignHCenter
        elide: Text.ElideRight
        font.pixelSize: Theme.titleSize
        font.weight: Font.DemiBold
        text: root.screen.title
    }
    BarTextButton {
        id: done
        anchors.right: parent.right
        height: parent.height
        text: Localized.text("generic.done")
        key: "Esc"
        isAction: true
        onClicked: root.screen.doneButtonPressed()
    }
}
