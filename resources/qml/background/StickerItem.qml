import QtQuick
import Pelmira 1.0

// The object, with what takes hold of it while it is selected.
Item {
    id: root

    required property StickerView sticker
    required property LayerShadow shadow

    component Settle: NumberAnimation {
        duration: 300
        easing.type: Easing.OutCubic
    }

    width: sticker.bounds.width
    height: sticker.bounds.height
    x: sticker.center.x - width / 2
    y: sticker.center.y - height / 2
    rotation: sticker.rotationDegrees
    Behavior on width { enabled: root.sticker.animates; Settle {} }
    Behavior on height { enabled: root.sticker.animates; Settle {} }

    Item {
        anchors.fill: parent
        opacity: root.sticker.contentAlpha
        transform: Scale {
            origin.x: root.width / 2
            xScale: root.sticker.contentViewHFlip ? -1 : 1
            Behavior on xScale { Settle {} }
        }

        ImageView {
            x: root.shadow.frame.x
            y: root.shadow.frame.y
            width: root.shadow.frame.width
            height: root.shadow.frame.height
            opacity: root.shadow.opacity
            image: root.shadow.image
        }
        ImageView {
            anchors.fill: parent
            mipmap: true
            softEdges: true
            image: root.sticker.image
        }
    }
    Rectangle {
        anchors.fill: parent
        color: "transparent"
        border.color: "lightgrey"
        border.width: root.sticker.borderWidth
        visible: root.sticker.borderWidth > 0
    }

    Repeater {
        model: root.sticker.handles
        Item {
            id: handle

            required property HandleView modelData
            readonly property bool isButton: modelData.backgroundColor.a > 0

            x: modelData.frame.x
            y: modelData.frame.y
            width: modelData.frame.width
            height: modelData.frame.height
            opacity: modelData.hidden ? 0 : 1
            visible: opacity > 0
            Behavior on opacity { NumberAnimation { duration: Theme.quick } }

            Rectangle {
                anchors.fill: parent
                visible: handle.isButton
                radius: width / 2
                color: handle.modelData.backgroundColor
                border.color: "#40000000"
                border.width: Theme.hairline
            }
            IconView {
                anchors.centerIn: parent
                width: handle.isButton ? 18 : parent.width
                height: width
                source: "icons/" + handle.modelData.imageName + ".svg"
            }
        }
    }
}
