import QtQuick
import Pelmira 1.0

// The strip of colours, and below it the field of hues with the strength of the chosen one.
Item {
    id: root

    required property ColorPickerLineView line
    required property ColorPickerView picker
    required property Item loupe
    readonly property real fieldHeight: Math.max(40, height - 2 * Theme.target - 4)

    PickerSurface {
        width: parent.width
        height: Theme.target
        isLine: true
        image: root.line.image
        picked: root.line.color
        markX: root.line.position
        loupe: root.loupe
        name: Localized.text("colorpicker.line")
        valueText: root.line.color.toString()
        onMoved: x => root.line.pick(x)
    }
    PickerSurface {
        y: Theme.target + 2
        width: parent.width
        height: root.fieldHeight
        image: root.picker.field
        picked: root.picker.color
        markX: root.picker.hue
        markY: 1 - root.picker.lightness
        loupe: root.loupe
        name: Localized.text("colorpicker.field")
        valueText: root.picker.color.toString()
        onMoved: (x, y) => root.picker.pickInField(Qt.point(x, y))
    }
    PickerSurface {
        y: Theme.target + root.fieldHeight + 4
        width: parent.width
        height: Theme.target
        isLine: true
        image: root.picker.saturationLine
        picked: root.picker.color
        markX: root.picker.saturation
        loupe: root.loupe
        name: Localized.text("colorpicker.saturation")
        valueText: root.picker.color.toString()
        onMoved: x => root.picker.pickSaturation(x)
    }
}
