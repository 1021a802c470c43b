import QtQuick
import Pelmira 1.0

// An application's icon, or what stands for it until it comes and if it doesn't.
Item {
    id: root

    required property CrossPromoteItem entry

    IconView {
        anchors.fill: parent
        visible: picture.opacity < 1
        source: root.entry.hasIconFailed ? "icons/zkl-failedIcon.svg" : "icons/zkl-defaultIcon.svg"
    }
    ImageView {
        id: picture
        readonly property real ratio: implicitHeight > 0 ? implicitWidth / implicitHeight : 1
        anchors.centerIn: parent
        width: Math.min(parent.width, parent.height * ratio)
        height: Math.min(parent.height, parent.width / ratio)
        image: root.entry.icon
        opacity: implicitWidth > 0 ? 1 : 0
        Behavior on opacity { NumberAnimation { duration: Theme.motion } }
    }
}
