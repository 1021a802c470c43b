import QtQuick
import Pelmira 1.0

// One photo of the grid.
Item {
    id: root

    required property int index
    required property string name
    required property var thumbnail
    required property bool isBroken
    required property bool isLoading
    required property bool isCurrent
    required property real cellSize

    signal tapped

    width: cellSize
    height: cellSize

    Accessible.role: Accessible.Button
    Accessible.name: isBroken ? name + ", " + Localized.text("photopicker.broken") : name
    Accessible.focusable: true
    Accessible.onPressAction: tapped()

    Rectangle {
        anchors.fill: parent
        anchors.margins: 1
        color: Theme.raised

        ImageView {
            anchors.fill: parent
            covers: true
            image: root.thumbnail
            opacity: root.isLoading ? 0.4 : press.pressed ? 0.7 : 1
            Behavior on opacity { NumberAnimation { duration: Theme.quick } }
        }
        PlText {
            anchors.centerIn: parent
            width: parent.width - 2 * Theme.grid
            visible: root.isBroken
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            font.pixelSize: Theme.captionSize
            color: Theme.secondaryText
            text: Localized.text("photopicker.broken")
        }
        Spinner {
            anchors.centerIn: parent
            running: root.isLoading
        }
        Rectangle {
            anchors.fill: parent
            color: "transparent"
            border.color: hover.hovered ? Theme.text : "transparent"
            border.width: 2
        }
        FocusRing {
            anchors.fill: parent
            visible: root.isCurrent
            border.width: 4
        }
    }
    TapHandler {
        id: press
        onTapped: root.tapped()
    }
    HoverHandler {
        id: hover
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
    }
}
