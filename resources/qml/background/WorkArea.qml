import QtQuick
import Pelmira 1.0

// The canvas, the object over it, and in front of both the masks around the canvas.
Item {
    id: root

    required property BGEWorkAreaView workArea
    required property LayerShadow shadow

    component Glide: NumberAnimation {
        duration: 400
        easing.type: Easing.InOutCubic
    }
    component Gliding: Item {
        property rect frame
        x: frame.x
        y: frame.y
        width: frame.width
        height: frame.height
        Behavior on x { enabled: root.workArea.animatesLayout; Glide {} }
        Behavior on y { enabled: root.workArea.animatesLayout; Glide {} }
        Behavior on width { enabled: root.workArea.animatesLayout; Glide {} }
        Behavior on height { enabled: root.workArea.animatesLayout; Glide {} }
    }
    component Mask: Gliding {
        Rectangle {
            anchors.fill: parent
            color: "black"
            opacity: 0.8
        }
    }

    Gliding {
        frame: root.workArea.bgImageView.frame
        visible: !root.workArea.bgImageView.hidden

        Rectangle {
            anchors.fill: parent
            color: root.workArea.bgImageView.backgroundColor
        }
        ImageView {
            anchors.fill: parent
            overhangs: true
            mipmap: true
            image: root.workArea.bgImageView.image
        }
        ImageView {
            anchors.fill: parent
            tiles: true
            image: root.workArea.bgImageView.tile
        }
    }

    Repeater {
        model: root.workArea.fgStickerView ? [root.workArea.fgStickerView] : []
        StickerItem {
            required property StickerView modelData
            sticker: modelData
            shadow: root.shadow
        }
    }

    Mask { frame: root.workArea.topMaskFrame }
    Mask { frame: root.workArea.bottomMaskFrame }
    Mask { frame: root.workArea.leftMaskFrame }
    Mask { frame: root.workArea.rightMaskFrame }

    Item {
        anchors.fill: parent
        activeFocusOnTab: true
        Accessible.role: Accessible.Graphic
        Accessible.name: Localized.text("backgroundeditscreen.workArea")
        Accessible.description: Localized.text("backgroundeditscreen.workArea.keys")

        TouchArea {
            anchors.fill: parent
            screen: root.workArea
            wheelZooms: true
            takesTab: false
        }
        FocusRing {
            visible: parent.activeFocus
            anchors.fill: parent
            anchors.margins: 2
        }
    }

    HoverHandler {
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        cursorShape: {
            const sticker = root.workArea.fgStickerView; // asked again when the object moves
            const geometry = sticker ? [sticker.center, sticker.bounds, sticker.selected] : null;
            return root.workArea.cursorForPoint(point.position);
        }
    }
}
