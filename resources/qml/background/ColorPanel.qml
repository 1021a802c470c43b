import QtQuick
import QtQuick.Templates as T
import Pelmira 1.0

// The pickers of a solid colour, and the button that opens the mixer.
SlidingPanel {
    id: root

    required property BGEColorView panel

    required property Item loupe
    required property string rgbText

    signal rgbRequested

    contentHeight: Math.min(300, height - Theme.target)

    T.AbstractButton {
        id: rgbButton
        parent: root
        x: 2 * Theme.grid
        y: root.height - root.contentHeight - Theme.target
        implicitWidth: label.implicitWidth + 3 * Theme.grid
        height: Theme.target
        focusPolicy: Qt.TabFocus
        opacity: root.isUp ? 1 : 0
        Behavior on opacity { NumberAnimation { duration: 300 } }
        text: root.rgbText
        Accessible.name: Localized.text("backgroundeditscreen.mixer")
        Accessible.description: root.rgbText
        Keys.onReturnPressed: clicked()
        Keys.onEnterPressed: clicked()
        onClicked: root.rgbRequested()

        background: Item {
            Rectangle {
                anchors.fill: parent
                anchors.topMargin: 6
                anchors.bottomMargin: 6
                radius: 5
                color: rgbButton.pressed ? Theme.pressed : hover.hovered ? "#22ffffff" : Theme.hover
            }
            FocusRing {
                visible: rgbButton.visualFocus
                anchors.fill: parent
                anchors.topMargin: 3
                anchors.bottomMargin: 3
                radius: 8
            }
        }
        contentItem: PlText {
            id: label
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            font.pixelSize: 13
            text: rgbButton.text
        }
        HoverHandler {
            id: hover
            acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        }
    }

    ColorPickers {
        x: 2 * Theme.grid
        width: parent.width - 2 * x
        height: parent.height - 4
        line: root.panel.colorPickerLineView
        picker: root.panel.colorPickerView
        loupe: root.loupe
    }
}
