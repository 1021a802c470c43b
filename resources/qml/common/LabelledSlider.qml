import QtQuick
import Pelmira 1.0

// A caption with its slider on one line.
Item {
    id: root

    required property ZKLSlider model
    property string text
    property real labelColumn: labelWidth
    readonly property real labelWidth: label.implicitWidth
    property alias minimumTrackColor: slider.minimumTrackColor
    property alias maximumTrackColor: slider.maximumTrackColor

    implicitHeight: Theme.target

    PlText {
        id: label
        anchors.verticalCenter: parent.verticalCenter
        width: root.labelColumn
        text: root.text
    }
    PlSlider {
        id: slider
        x: root.labelColumn + 16
        width: root.width - x
        model: root.model
        name: root.text
    }
}
