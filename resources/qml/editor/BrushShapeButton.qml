import QtQuick

IconButton {
    required property QtObject panel

    implicitWidth: 56
    toggles: true
    onClicked: panel.handleBrushShapeButton(model)
}
