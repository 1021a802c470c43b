import QtQuick
import Pelmira 1.0

// A question in the middle of the window. Escape cancels, Enter acts, and so do the buttons; the
// screen behind gets nothing until it is answered.
FocusScope {
    id: root

    required property QtObject alert

    anchors.fill: parent
    visible: opacity > 0
    enabled: alert.isOpen
    opacity: alert.isOpen ? 1 : 0
    Behavior on opacity { NumberAnimation { duration: Theme.motion; easing.type: Easing.OutCubic } }
    onEnabledChanged: if (enabled) forceActiveFocus()

    Keys.onEscapePressed: alert.buttonPressed(false)
    Keys.onReturnPressed: alert.buttonPressed(true)
    Keys.onEnterPressed: alert.buttonPressed(true)

    Rectangle {
        anchors.fill: parent
        color: "#99000000"
        MultiPointTouchArea {
            anchors.fill: parent
        }
        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.AllButtons
            hoverEnabled: true
            onWheel: wheel => wheel.accepted = true
        }
    }

    Rectangle {
        anchors.centerIn: parent
        width: Math.min(parent.width - 6 * Theme.grid, 340)
        height: column.height + 5 * Theme.grid
        radius: Theme.barRadius
        color: Theme.raised
        border.color: Theme.hairlineColor
        border.width: Theme.hairline
        scale: root.alert.isOpen ? 1 : 0.96
        Behavior on scale { NumberAnimation { duration: Theme.motion; easing.type: Easing.OutCubic } }

        Accessible.role: Accessible.Dialog
        Accessible.name: root.alert.title

        Column {
            id: column
            x: 3 * Theme.grid
            y: 2.5 * Theme.grid
            width: parent.width - 6 * Theme.grid
            spacing: Theme.grid

            PlText {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                font.pixelSize: Theme.titleSize
                font.weight: Font.DemiBold
                text: root.alert.title
            }
            PlText {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                lineHeight: 1.2
                color: Theme.secondaryText
                text: root.alert.message
            }
            Item { width: 1; height: Theme.grid }
            Row {
                width: parent.width
                spacing: Theme.grid

                AlertButton {
                    width: (parent.width - parent.spacing) / 2
                    text: root.alert.cancelButtonTitle
                    onClicked: root.alert.buttonPressed(false)
                }
                AlertButton {
                    width: (parent.width - parent.spacing) / 2
                    isAction: true
                    text: root.alert.actionButtonTitle
                    onClicked: root.alert.buttonPressed(true)
                }
            }
        }
    }
}
