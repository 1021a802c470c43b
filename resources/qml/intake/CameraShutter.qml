import QtQuick
import QtQuick.Templates as T

// The release: a disc in a ring.
T.AbstractButton {
    id: control

    property bool busy: false

    focusPolicy: Qt.TabFocus
    implicitWidth: 76
    implicitHeight: 76

    Accessible.name: text
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    background: Item {
        opacity: control.enabled || control.busy ? 1 : Theme.disabledOpacity
        Behavior on opacity { NumberAnimation { duration: Theme.motion } }

        // A dark rim, so that the ring stands off a bright picture too.
        Rectangle {
            anchors.fill: parent
            radius: width / 2
            color: "#66000000"
        }
        Rectangle {
            anchors.fill: parent
            anchors.margins: 2
            radius: width / 2
            color: "transparent"
            border.width: 4
            border.color: Theme.text
        }
        FocusRing {
            visible: control.visualFocus
            anchors.fill: parent
            anchors.margins: -4
            radius: width / 2
        }
    }

    contentItem: Item {
        Rectangle {
            anchors.centerIn: parent
            width: control.width - 18
            height: width
            radius: width / 2
            color: Theme.text
            opacity: control.busy ? 0.5 : control.enabled ? 1 : Theme.disabledOpacity
            scale: control.busy || control.pressed ? 0.86 : 1
            Behavior on scale { NumberAnimation { duration: Theme.quick; easing.type: Easing.OutCubic } }
            Behavior on opacity { NumberAnimation { duration: Theme.quick } }
        }
    }
}
