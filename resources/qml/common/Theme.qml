pragma Singleton
import QtQuick
import Pelmira 1.0

// The one place for colours, measures and motion.
QtObject {
    // Ground and surfaces
    readonly property color ground: StyleUtil.ground
    readonly property color bar: "#f01b1d21"
    readonly property color barFade: "#e61b1d21"
    readonly property color barFadeEnd: "#001b1d21"
    readonly property color raised: "#2b2e34"
    readonly property color panel: "#f5272a30"
    readonly property color sheet: "#1b1d21"
    readonly property color hairlineColor: "#24ffffff"
    readonly property color darkGrey: "#555555"
    readonly property color lightGrey: "#aaaaaa"
    readonly property color lightCard: "#eceef1"
    readonly property color inkOnLight: "#000000"

    // What stands on them
    readonly property color text: "#ffffff"
    readonly property color secondaryText: "#a9adb5"
    readonly property color onAction: ground
    readonly property color selected: StyleUtil.selectedTint
    readonly property color hover: "#14ffffff"
    readonly property color pressed: "#29ffffff"
    readonly property real disabledOpacity: 0.32

    // The shared palette
    readonly property color deleteRed: StyleUtil.deleteRed
    readonly property color buttonBlue: StyleUtil.buttonBlue
    readonly property color sliderMinTrackColor: StyleUtil.sliderMinTrackColor
    readonly property color sliderMaxTrackColor: StyleUtil.sliderMaxTrackColor

    // Measures in points, on a grid of eight
    readonly property real grid: 8
    readonly property real target: 44
    readonly property real icon: 24
    readonly property real groupWidth: 640
    readonly property real barRadius: 20
    readonly property real buttonRadius: 12
    readonly property real hairline: 1 / Screen.devicePixelRatio

    // Type, in points of the screen
    readonly property int captionSize: 11
    readonly property int bodySize: 15
    readonly property int titleSize: 17

    // Motion in milliseconds
    readonly property int quick: 100
    readonly property int motion: 250
    readonly property int barMotion: 400
}
