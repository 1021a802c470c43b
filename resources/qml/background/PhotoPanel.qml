import QtQuick
import QtQuick.Templates as T
import Pelmira 1.0

// The photo behind the cut-out: a tap on it takes another, the button beside it crops it, and the
// slider blurs it.
SlidingPanel {
    id: root

    required property BGEPhotoView panel

    title: Localized.text("backgroundeditscreen.photo")
    contentHeight: 124

    component Framed: T.AbstractButton {
        id: framed

        property alias frameColor: frame.color

        focusPolicy: Qt.TabFocus
        Accessible.name: text
        Keys.onReturnPressed: clicked()
        Keys.onEnterPressed: clicked()
        scale: pressed ? 0.96 : 1
        Behavior on scale { NumberAnimation { duration: Theme.quick } }
        background: Rectangle {
            id: frame
            radius: root.panel.cornerRadius
            color: framed.pressed ? Theme.pressed : hover.hovered ? Theme.hover : "transparent"
            FocusRing {
                visible: framed.visualFocus
                anchors.fill: parent
                anchors.margins: -4
            }
        }
        HoverHandler {
            id: hover
            acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        }
        Rectangle {
            anchors.fill: parent
            z: 1
            radius: root.panel.cornerRadius
            color: "transparent"
            border.color: root.panel.borderColor
            border.width: root.panel.borderWidth
        }
    }

    Framed {
        id: thumbnail
        x: 2 * Theme.grid
        width: 64
        height: 64
        text: Localized.text("backgroundeditscreen.photopanel.choose")
        onClicked: root.panel.handlePhotoTapped()
        contentItem: Item {
            ImageView {
                anchors.fill: parent
                covers: true
                radius: root.panel.cornerRadius
                image: root.panel.image
            }
        }
    }
    Framed {
        id: crop
        anchors.verticalCenter: thumbnail.verticalCenter
        x: thumbnail.x + thumbnail.width + 2 * Theme.grid
        implicitWidth: row.width + 4 * Theme.grid
        height: Theme.target
        text: Localized.text("backgroundeditscreen.photopanel.crop")
        onClicked: root.panel.cropButtonPressed()
        contentItem: Item {
            Row {
                id: row
                anchors.centerIn: parent
                spacing: Theme.grid
                IconView {
                    anchors.verticalCenter: parent.verticalCenter
                    width: 20
                    height: 20
                    source: "icons/zkl-crop.svg"
                }
                PlText {
                    anchors.verticalCenter: parent.verticalCenter
                    text: crop.text
                }
            }
        }
    }
    LabelledSlider {
        id: blur
        x: 2 * Theme.grid
        y: 72
        width: Math.min(root.width - 2 * x, Theme.groupWidth)
        text: root.panel.blurLabel
        model: root.panel.slider
        minimumTrackColor: root.panel.minimumTrackColor
        maximumTrackColor: root.panel.maximumTrackColor

        readonly property real track: width - labelWidth - 16
        onTrackChanged: root.panel.setSliderWidth(track)
        Component.onCompleted: root.panel.setSliderWidth(track)
    }
}
