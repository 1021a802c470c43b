import QtQuick
import Pelmira 1.0

// The mixer of red, green and blue. It slides up over everything; a tap above it is the tick.
Item {
    id: root

    required property EditBackgroundVC screen

    visible: screen.rgbMixerPanelVC !== null
    enabled: screen.mixerIsUp

    MouseArea {
        anchors.fill: parent
        onClicked: root.screen.rgbMixerPanelVC.handleTopScreenTap()
        onWheel: wheel => wheel.accepted = true
    }

    Repeater {
        model: root.screen.rgbMixerPanelVC ? [root.screen.rgbMixerPanelVC] : []
        RgbMixerCard {
            id: card

            required property ZKLRGBMixerVC modelData

            mixer: modelData
            x: root.screen.isWide ? root.screen.tabbarFrame.x : 0
            width: root.screen.isWide ? root.screen.tabbarFrame.width : root.width
            // It covers the panel that it came from.
            height: Math.max(implicitHeight, root.height - root.screen.controlContainerFrame.y)
            y: root.height - height * travel

            property real travel: 0
            property bool isUp: false
            Component.onCompleted: isUp = true
            states: State {
                when: card.isUp && root.screen.mixerIsUp
                PropertyChanges { target: card; travel: 1 }
            }
            transitions: Transition {
                NumberAnimation { property: "travel"; duration: 300; easing.type: Easing.OutCubic }
            }
        }
    }
}
