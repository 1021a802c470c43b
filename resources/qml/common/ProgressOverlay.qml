import QtQuick
import Pelmira 1.0

// A card in the middle of the screen: a turning ring while something is under way, a check mark
// when it is done, an exclamation mark when it went wrong. Touches go on to the screen, but for those on a card with a button.
Item {
    id: root

    required property ZKLProgressHUD hud

    // What the fading card goes on showing.
    property bool success: false
    property bool error: false
    property string status
    property string detail
    property string actionTitle

    function take() {
        if (!hud.isVisible)
            return;
        success = hud.isSuccess;
        error = hud.isError;
        status = hud.status;
        detail = hud.detail;
        actionTitle = hud.actionTitle;
    }
    Connections {
        target: root.hud
        function onChanged() { root.take() }
    }
    Component.onCompleted: take()

    anchors.fill: parent
    visible: opacity > 0
    enabled: hud.isVisible
    opacity: hud.isVisible ? 1 : 0
    Behavior on opacity { NumberAnimation { duration: Theme.motion; easing.type: Easing.OutCubic } }

    Rectangle {
        anchors.centerIn: parent
        width: Math.min(Math.max(160, column.implicitWidth + 6 * Theme.grid), parent.width - 6 * Theme.grid)
        height: column.implicitHeight + 5 * Theme.grid
        radius: Theme.barRadius
        color: Theme.raised
        border.color: Theme.hairlineColor
        border.width: Theme.hairline

        Accessible.role: Accessible.AlertMessage
        Accessible.name: root.detail === "" ? root.status : root.status + "\n" + root.detail

        MouseArea {
            anchors.fill: parent
            enabled: root.actionTitle !== ""
            onClicked: root.hud.dismiss()
        }

        Column {
            id: column
            anchors.centerIn: parent
            width: Math.min(implicitWidth, root.width - 12 * Theme.grid)
            spacing: 1.5 * Theme.grid

            Item {
                anchors.horizontalCenter: parent.horizontalCenter
                width: 44
                height: 44

                Spinner {
                    anchors.fill: parent
                    running: !root.success && !root.error && root.visible
                    tintColor: Theme.buttonBlue
                }
                Rectangle {
                    anchors.fill: parent
                    visible: root.success || root.error
                    radius: width / 2
                    color: root.error ? Theme.deleteRed : Theme.buttonBlue
                    IconView {
                        anchors.centerIn: parent
                        width: 28
                        height: 28
                        source: root.error ? "icons/failed.svg" : "icons/check.svg"
                        tintColor: Theme.onAction
                    }
                }
            }
            PlText {
                anchors.horizontalCenter: parent.horizontalCenter
                visible: text !== ""
                width: Math.min(implicitWidth, root.width - 12 * Theme.grid, 320)
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                font.weight: Font.DemiBold
                text: root.status
            }
            PlText {
                visible: text !== ""
                width: Math.min(implicitWidth, root.width - 12 * Theme.grid, 320)
                anchors.horizontalCenter: parent.horizontalCenter
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                color: Theme.secondaryText
                text: root.detail
            }
            AlertButton {
                visible: root.actionTitle !== ""
                anchors.horizontalCenter: parent.horizontalCenter
                width: 200
                height: Theme.target
                enabled: root.hud.isActionEnabled
                opacity: enabled ? 1 : Theme.disabledOpacity
                text: root.actionTitle
                onClicked: root.hud.actionButtonPressed()
            }
        }
    }
}
