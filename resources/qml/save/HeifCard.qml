import QtQuick
import Pelmira 1.0

// Offers the smaller format, on a light card.
Rectangle {
    id: root

    required property SaveViewController screen
    // The switch below the words, where there is no room beside them.
    property bool narrow: false
    // Its label above it, where there isn't even room beside the switch.
    readonly property bool stacked: !narrow
        || toggleColumn.width < label.implicitWidth + Theme.grid + toggle.width

    implicitHeight: narrow ? words.implicitHeight + toggleColumn.height + 3 * Theme.grid
                           : Math.max(words.implicitHeight, toggleColumn.height) + 3 * Theme.grid
    radius: Theme.buttonRadius
    color: Theme.lightCard

    Column {
        id: words
        x: 2 * Theme.grid
        y: 1.5 * Theme.grid
        width: parent.width - 4 * Theme.grid - (root.narrow ? 0 : toggleColumn.width + 2 * Theme.grid)
        spacing: 2

        PlLabel {
            width: parent.width
            wrapMode: Text.Wrap
            color: Theme.inkOnLight
            font.pixelSize: 14
            font.weight: Font.DemiBold
            text: root.screen.useHEIFTitle
        }
        PlLabel {
            width: parent.width
            wrapMode: Text.Wrap
            lineHeight: 1.15
            color: Theme.inkOnLight
            font.pixelSize: 13
            text: root.screen.useHEIFMessage
        }
    }
    Item {
        id: toggleColumn
        x: parent.width - width - 2 * Theme.grid
        y: root.narrow ? words.y + words.implicitHeight
                       : Math.round((parent.height - height) / 2)
        width: root.narrow ? parent.width - 4 * Theme.grid : Math.max(toggle.width, label.implicitWidth)
        height: root.stacked ? label.implicitHeight + toggle.height : toggle.height

        PlText {
            id: label
            x: root.narrow ? 0 : Math.round((parent.width - implicitWidth) / 2)
            y: root.stacked ? 0 : Math.round((parent.height - implicitHeight) / 2)
            color: Theme.inkOnLight
            font.pixelSize: 13
            font.weight: Font.DemiBold
            text: root.screen.useHEIFLabel
        }
        PlSwitch {
            id: toggle
            x: !root.narrow ? Math.round((parent.width - width) / 2)
                : root.stacked ? 0 : parent.width - width
            y: root.stacked ? label.implicitHeight : 0
            model: root.screen.useHeifSwitch
            name: root.screen.useHEIFLabel
            focusColor: Theme.inkOnLight
            onRequested: isOn => root.screen.handleUseHeifSwitchToggled(isOn)
        }
    }
}
