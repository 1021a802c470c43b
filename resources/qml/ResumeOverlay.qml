import QtQuick
import Pelmira 1.0

// The offer to go on with unfinished work. Escape declines, Enter accepts.
FocusScope {
    id: root

    // The offer while it stands, else null.
    property QtObject model: null

    onModelChanged: if (model !== null) forceActiveFocus()

    anchors.fill: parent
    enabled: model !== null
    visible: opacity > 0
    opacity: model !== null ? 1 : 0
    Behavior on opacity { NumberAnimation { duration: Theme.motion; easing.type: Easing.OutCubic } }

    Keys.onEscapePressed: model.handleNo()
    Keys.onReturnPressed: model.handleYes()
    Keys.onEnterPressed: model.handleYes()

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
        }
    }

    Rectangle {
        anchors.centerIn: parent
        width: Math.min(parent.width - 6 * Theme.grid, 340)
        height: column.height + 5 * Theme.grid
        radius: 16
        color: Theme.raised
        border.color: Theme.hairlineColor
        border.width: Theme.hairline

        Accessible.role: Accessible.Dialog
        Accessible.name: titleText.text

        Column {
            id: column
            x: 3 * Theme.grid
            y: 2.5 * Theme.grid
            width: parent.width - 6 * Theme.grid
            spacing: Theme.grid

            Item {
                width: parent.width
                height: Math.min(180, root.height * 0.36)

                ImageView {
                    id: picture
                    anchors.centerIn: parent
                    readonly property real ratio: implicitHeight > 0 ? implicitWidth / implicitHeight : 1
                    width: Math.min(parent.width, parent.height * ratio)
                    height: width / ratio
                    image: root.model !== null ? root.model.image : image
                }
            }
            PlText {
                id: titleText
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                font.pixelSize: Theme.titleSize
                font.weight: Font.DemiBold
                text: root.model !== null ? root.model.titleLabel : ""
            }
            PlText {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                lineHeight: 1.2
                color: Theme.secondaryText
                text: root.model !== null ? root.model.messageLabel : ""
            }
            Item { width: 1; height: Theme.grid }
            Row {
                width: parent.width
                spacing: Theme.grid

                AlertButton {
                    width: (parent.width - parent.spacing) / 2
                    text: root.model !== null ? root.model.noButton : ""
                    onClicked: root.model.handleNo()
                }
                AlertButton {
                    width: (parent.width - parent.spacing) / 2
                    isAction: true
                    text: root.model !== null ? root.model.yesButton : ""
                    onClicked: root.model.handleYes()
                }
            }
        }
    }
}
