import QtQuick
import Pelmira 1.0

// The shadow's offset each way, its softness and its colour.
SlidingPanel {
    id: root

    required property BGEShadowView panel

    required property Item loupe

    title: Localized.text("backgroundeditscreen.shadow")
    contentHeight: Math.min(4 * Theme.target + 12, height - Theme.target)

    Flickable {
        anchors.fill: parent
        contentHeight: rows.height
        interactive: contentHeight > height
        clip: interactive
        boundsBehavior: Flickable.DragOverBounds

        Column {
            id: rows

            readonly property real labelColumn: Math.max(horizontal.labelWidth, vertical.labelWidth, blur.labelWidth)

            x: 2 * Theme.grid
            width: Math.min(root.width - 2 * x, Theme.groupWidth)

            LabelledSlider {
                id: horizontal
                width: parent.width
                labelColumn: rows.labelColumn
                text: Localized.text("backgroundeditscreen.shadowpanel.horizontal")
                model: root.panel.xSlider
            }
            LabelledSlider {
                id: vertical
                width: parent.width
                labelColumn: rows.labelColumn
                text: Localized.text("backgroundeditscreen.shadowpanel.vertical")
                model: root.panel.ySlider
            }
            LabelledSlider {
                id: blur
                width: parent.width
                labelColumn: rows.labelColumn
                text: root.panel.blurLabel
                model: root.panel.blurSlider
            }
            PickerSurface {
                width: parent.width
                height: Theme.target
                isLine: true
                image: root.panel.colorPickerLineView.image
                picked: root.panel.colorPickerLineView.color
                markX: root.panel.colorPickerLineView.position
                loupe: root.loupe
                name: Localized.text("colorpicker.line")
                valueText: root.panel.colorPickerLineView.color.toString()
                onMoved: x => root.panel.colorPickerLineView.pick(x)
            }
        }
    }
}
