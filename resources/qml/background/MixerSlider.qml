import QtQuick
import Pelmira 1.0

// A channel: its letter, a slider whose track shows what it would do, and its value.
Item {
    id: root

    required property ZKLSlider model
    required property string letter
    required property string name
    required property string valueText
    property alias track: view.image
    readonly property alias trackWidth: view.width

    implicitHeight: Theme.target

    PlText {
        anchors.verticalCenter: parent.verticalCenter
        font.weight: Font.DemiBold
        text: root.letter
    }
    PlSlider {
        x: 24
        width: root.width - x - 44
        model: root.model
        name: root.name
        background: ImageView {
            id: view
            x: 1
            y: Math.round((parent.height - height) / 2)
            width: parent.width - 2
            height: 4
        }
    }
    PlText {
        anchors.verticalCenter: parent.verticalCenter
        anchors.right: parent.right
        text: root.valueText
    }
}
