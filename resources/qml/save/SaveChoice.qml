import QtQuick
import QtQuick.Templates as T
import Pelmira 1.0

// One of the two results: its label, its preview, and what can be done with it. A tap on the
// preview saves it too.
Item {
    id: root

    required property PicturePreview preview
    required property InterfaceButton saveButton
    required property InterfaceButton otherButton
    required property string label
    property string format
    required property string saveName
    required property string otherName
    required property string saveText
    required property string otherText
    property string saveKey
    // Chooses the colour below the picture; null where there is none to choose.
    property InterfaceButton colorButton: null
    property bool showsGrid: false
    property bool compact: false

    signal saveRequested
    signal colorRequested
    signal photoTapped
    signal otherRequested(rect frame)

    // The label and the buttons keep close to the picture, the whole in the middle.
    readonly property real gap: compact ? Theme.grid : 1.5 * Theme.grid
    readonly property real ratio: picture.implicitHeight > 0
        ? picture.implicitWidth / picture.implicitHeight : 4 / 3
    readonly property real photoRoom: height - header.height - actions.height - 1.5 * gap
    readonly property real photoWidth: Math.round(Math.min(width, photoRoom * ratio))
    readonly property real photoHeight: Math.round(Math.min(photoRoom, width / ratio))

    Item {
        id: header
        anchors.horizontalCenter: parent.horizontalCenter
        y: Math.round((root.photoRoom - root.photoHeight) / 2)
        width: parent.width
        height: 28

        Row {
            anchors.centerIn: parent
            spacing: Theme.grid
            PlText {
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, header.width - (pill.visible ? pill.width + Theme.grid : 0)
                                - (swatch.visible ? swatch.width + Theme.grid : 0))
                elide: Text.ElideRight
                color: Theme.secondaryText
                text: root.label
            }
            T.AbstractButton {
                id: swatch
                anchors.verticalCenter: parent.verticalCenter
                visible: root.colorButton !== null
                enabled: visible && root.colorButton.enabled
                opacity: enabled ? 1 : Theme.disabledOpacity
                width: Theme.target
                height: Theme.target
                focusPolicy: Qt.TabFocus
                Accessible.name: Localized.text("savescreen.button.changeColor")
                Keys.onReturnPressed: clicked()
                Keys.onEnterPressed: clicked()
                onClicked: root.colorRequested()

                background: Item {
                    Rectangle {
                        anchors.centerIn: parent
                        width: 26
                        height: 26
                        radius: 5
                        color: root.preview.backgroundColor
                        border.color: "black"
                        border.width: 1
                        scale: swatch.pressed ? 0.9 : 1
                        Rectangle {
                            anchors.fill: parent
                            anchors.margins: -2
                            radius: 7
                            color: "transparent"
                            border.color: swatch.visualFocus ? Theme.buttonBlue : hover.hovered ? "white" : Theme.lightGrey
                            border.width: 2
                        }
                    }
                }
                HoverHandler {
                    id: hover
                    acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
                }
                HoverTip {
                    text: Localized.text("savescreen.button.changeColor")
                    wanted: hover.hovered && !swatch.pressed
                }
            }
            Rectangle {
                id: pill
                anchors.verticalCenter: parent.verticalCenter
                visible: root.format !== ""
                width: formatText.implicitWidth + 14
                height: 20
                radius: 10
                color: Theme.pressed
                PlLabel {
                    id: formatText
                    anchors.centerIn: parent
                    font.pixelSize: 12
                    font.weight: Font.DemiBold
                    text: root.format
                }
            }
        }
    }

    T.AbstractButton {
        id: photo
        anchors.horizontalCenter: parent.horizontalCenter
        y: header.y + header.height + root.gap / 2
        width: root.photoWidth
        height: root.photoHeight
        enabled: root.saveButton.enabled
        focusPolicy: Qt.NoFocus // the keyboard has the button below for it
        Accessible.name: root.label
        onClicked: root.photoTapped()

        Rectangle {
            anchors.fill: parent
            color: root.preview.backgroundColor
            opacity: photo.pressed ? 0.85 : 1

            Image {
                anchors.fill: parent
                visible: root.showsGrid
                source: "icons/zkl-transparent-grid.png"
                fillMode: Image.Tile
                horizontalAlignment: Image.AlignLeft
                verticalAlignment: Image.AlignTop
                smooth: false
            }
            ImageView {
                id: picture
                anchors.fill: parent
                mipmap: true
                image: root.preview.image
                opacity: implicitWidth > 0 ? 1 : 0
                Behavior on opacity { NumberAnimation { duration: Theme.motion } }
            }
            Rectangle {
                anchors.fill: parent
                anchors.margins: -border.width
                color: "transparent"
                border.color: Theme.hairlineColor
                border.width: Theme.hairline
            }
        }
    }

    Row {
        id: actions
        anchors.horizontalCenter: parent.horizontalCenter
        y: photo.y + photo.height + root.gap
        spacing: 1.5 * Theme.grid

        readonly property real cell: Math.min(132, (root.width - spacing) / 2)

        SaveActionButton {
            width: actions.cell
            height: root.compact ? 52 : 56
            model: root.saveButton
            iconName: "save"
            text: root.saveText
            name: root.saveName
            key: root.saveKey
            isAction: true
            onClicked: root.saveRequested()
        }
        SaveActionButton {
            id: other
            width: actions.cell
            height: root.compact ? 52 : 56
            model: root.otherButton
            iconName: "share"
            text: root.otherText
            name: root.otherName
            onClicked: root.otherRequested(other.mapToItem(null, 0, 0, other.width, other.height))
        }
    }
}
