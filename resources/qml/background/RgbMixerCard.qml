import QtQuick
import QtQuick.Templates as T
import Pelmira 1.0

// The mixer's three sliders, what they make, and the favourites.
BarPanel {
    id: root

    required property ZKLRGBMixerVC mixer
    // What lies below isn't to shine through the tracks.
    readonly property color ground: Qt.rgba(Theme.panel.r, Theme.panel.g, Theme.panel.b, 1)

    implicitHeight: favourites.y + favourites.height
    color: ground

    Keys.onReturnPressed: root.mixer.handleTickButton()

    Row {
        id: header
        x: 2 * Theme.grid
        y: 4
        height: Theme.target + 8
        spacing: 1.5 * Theme.grid

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: 36
            height: 36
            radius: 5
            color: root.mixer.color
            border.color: "#33ffffff"
            border.width: 1
        }
        PlLabel {
            anchors.verticalCenter: parent.verticalCenter
            font.weight: Font.DemiBold
            text: root.mixer.hexLabel
        }
    }
    RoundButton {
        anchors.right: tick.left
        anchors.rightMargin: Theme.grid
        y: header.y + 4
        iconName: "zkl-favourite"
        text: Localized.text("rgbmixer.favourite")
        onClicked: root.mixer.handleFavouriteButton()
    }
    RoundButton {
        id: tick
        anchors.right: parent.right
        anchors.rightMargin: 1.5 * Theme.grid
        y: header.y + 4
        iconName: "check"
        text: Localized.text("generic.done")
        isAction: true
        onClicked: root.mixer.handleTickButton()
    }

    Column {
        id: sliders
        x: 2 * Theme.grid
        y: header.y + header.height
        width: parent.width - 2 * x

        MixerSlider {
            id: red
            width: parent.width
            model: root.mixer.rSlider
            letter: "R"
            name: Localized.text("rgbmixer.red")
            valueText: root.mixer.rLabel
            track: root.mixer.rTrack
            onTrackWidthChanged: root.mixer.setTrackWidth(trackWidth)
        }
        MixerSlider {
            width: parent.width
            model: root.mixer.gSlider
            letter: "G"
            name: Localized.text("rgbmixer.green")
            valueText: root.mixer.gLabel
            track: root.mixer.gTrack
        }
        MixerSlider {
            width: parent.width
            model: root.mixer.bSlider
            letter: "B"
            name: Localized.text("rgbmixer.blue")
            valueText: root.mixer.bLabel
            track: root.mixer.bTrack
        }
    }
    ScrollStrip {
        id: favourites
        y: sliders.y + sliders.height
        width: parent.width
        height: 76
        ground: root.ground
        centers: false
        contentWidth: root.mixer.contentSize.width
        Component.onCompleted: root.mixer.setScrollViewHeight(height)

        Repeater {
            model: root.mixer.favouriteColorViews
            T.AbstractButton {
                id: swatch

                required property var modelData
                required property int index

                x: modelData.frame.x
                y: modelData.frame.y
                width: modelData.frame.width
                height: modelData.frame.height
                focusPolicy: Qt.TabFocus
                Accessible.name: Localized.text("rgbmixer.swatch").arg(modelData.color.toString())
                Keys.onReturnPressed: clicked()
                onClicked: root.mixer.handleFavouriteTapped(index)
                onVisualFocusChanged: if (visualFocus) favourites.reveal(swatch)
                scale: pressed ? 0.92 : 1
                Behavior on scale { NumberAnimation { duration: Theme.quick } }

                background: Rectangle {
                    radius: 5
                    color: swatch.modelData.color
                    border.color: "#33ffffff"
                    border.width: 1
                    FocusRing {
                        visible: swatch.visualFocus
                        anchors.fill: parent
                        anchors.margins: -4
                        radius: 9
                    }
                }
            }
        }
    }
}
