import QtQuick
import Pelmira 1.0

IconButton {
    required property BrushPanelView panel

    implicitWidth: 56
    toggles: true
    onClicked: panel.handleBrushShapeButton(model)
}
