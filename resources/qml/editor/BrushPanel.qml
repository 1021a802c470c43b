import QtQuick
import Pelmira 1.0

// The brush's shape, offset and softness. In a narrow window the sliders stand below the shapes,
// in a wide one beside them. It slides in on a spring and out again to below the window.
Item {
    id: root

    // The panel while it is open, else null.
    property BrushPanelView model: null
    // Where it stands when open; the card is as wide as is good for it, in the middle.
    required property rect frame
    // Where it comes from: below the window.
    required property real hiddenY

    readonly property bool wide: parent.width - 40 >= 520
    readonly property real cardHeight: wide ? 64 : 8 + 48 + 2 * Theme.target + 8

    // What the closing panel goes on showing.
    property BrushPanelView shown: null
    // 0 hidden, 1 in place, beyond while the spring swings.
    property real travel: 0

    onModelChanged: {
        if (model !== null) {
            shown = model;
            closing.stop();
            opening.restart();
        } else {
            opening.stop();
            closing.restart();
        }
    }

    x: frame.x
    y: hiddenY + (frame.y - hiddenY) * travel
    width: frame.width
    height: frame.height
    visible: shown !== null && travel !== 0
    enabled: model !== null

    NumberAnimation {
        id: opening
        target: spring
        property: "seconds"
        from: 0
        to: 0.3
        duration: 300
    }
    NumberAnimation {
        id: closing
        target: root
        property: "travel"
        to: 0
        duration: 200
        easing.type: Easing.OutCubic
    }
    QtObject {
        id: spring
        property real seconds: 0
        onSecondsChanged: root.travel = root.shown.travelAfter(seconds)
    }

    Loader {
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width, Theme.groupWidth)
        height: root.cardHeight
        active: root.shown !== null
        sourceComponent: BarPanel {
            radius: root.shown.cornerRadius
            color: Theme.panel

            Row {
                id: shapes
                x: root.wide ? 8 : Math.round((parent.width - width) / 2)
                y: 8
                spacing: root.wide ? 0 : Theme.grid

                BrushShapeButton {
                    height: 48
                    panel: root.shown
                    model: root.shown.circleButton
                    iconName: "circle"
                    text: Localized.text("mainscreen.brush.circle")
                }
                BrushShapeButton {
                    height: 48
                    panel: root.shown
                    model: root.shown.triangleButton
                    iconName: "triangle"
                    text: Localized.text("mainscreen.brush.triangle")
                }
                BrushShapeButton {
                    height: 48
                    panel: root.shown
                    model: root.shown.squareButton
                    iconName: "square"
                    text: Localized.text("mainscreen.brush.square")
                }
            }

            Rectangle {
                visible: root.wide
                x: shapes.x + shapes.width + 8
                width: Theme.hairline
                height: parent.height - 24
                y: 12
                color: Theme.hairlineColor
            }

            Grid {
                id: sliders

                readonly property real room: root.wide
                    ? (parent.width - x - 16 - columnSpacing) / 2 : parent.width - 32
                readonly property real labelWidth: Math.ceil(Math.max(offset.labelWidth,
                                                                      softness.labelWidth))

                x: root.wide ? shapes.x + shapes.width + 24 : 16
                y: root.wide ? 10 : 56
                columns: root.wide ? 2 : 1
                columnSpacing: 24

                LabelledSlider {
                    id: offset
                    width: sliders.room
                    labelColumn: root.wide ? labelWidth : sliders.labelWidth
                    text: root.shown.offsetLabel
                    model: root.shown.offsetSlider
                }
                LabelledSlider {
                    id: softness
                    width: sliders.room
                    labelColumn: root.wide ? labelWidth : sliders.labelWidth
                    text: root.shown.softnessLabel
                    model: root.shown.softnessSlider
                }
            }
        }
    }
}
