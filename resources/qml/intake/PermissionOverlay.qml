import QtQuick
import Pelmira 1.0

// Covers the first screen while the folder of photos can't be read.
FocusScope {
    id: root

    // The overlay while it stands, else null.
    property PermissionOverlayView model: null

    anchors.fill: parent
    visible: model !== null
    opacity: model !== null ? model.alpha : 0
    Behavior on opacity { NumberAnimation { duration: 300 } }
    onVisibleChanged: if (visible) forceActiveFocus()

    Rectangle {
        anchors.fill: parent
        color: Theme.ground
        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.AllButtons
            hoverEnabled: true
        }
    }
    Column {
        anchors.centerIn: parent
        width: Math.min(root.width - 6 * Theme.grid, 360)
        spacing: 1.5 * Theme.grid

        IconView {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 56
            height: 56
            source: "icons/open-photo.svg"
            tintColor: Theme.buttonBlue
        }
        PlLabel {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            font.pixelSize: 26
            font.weight: Font.DemiBold
            text: root.model !== null ? root.model.titleLabel : ""
        }
        PlLabel {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WrapAtWordBoundaryOrAnywhere
            lineHeight: 1.25
            color: Theme.secondaryText
            text: root.model !== null ? root.model.messageLabel : ""
        }
        Item { width: 1; height: Theme.grid }
        WideButton {
            width: parent.width
            isAction: true
            text: root.model !== null ? root.model.allowButton : ""
            onClicked: root.model.handleAllow()
        }
        WideButton {
            width: parent.width
            text: root.model !== null ? root.model.laterButton : ""
            onClicked: root.model.handleLater()
        }
    }
    Keys.onEscapePressed: root.model.handleLater()
}
