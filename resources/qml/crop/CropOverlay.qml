import QtQuick

// The crop box: what lies outside is dimmed, its edges are drawn, its corners can be seen to be
// handles. While the user edits, thirds help to place the picture and the surround clears a little.
Item {
    id: root

    required property rect box
    required property color dimColor
    required property bool editing
    property string name

    readonly property real boxLeft: box.left
    readonly property real boxTop: box.top
    readonly property real boxRight: box.right
    readonly property real boxBottom: box.bottom
    readonly property real boxWidth: box.width
    readonly property real boxHeight: box.height
    readonly property real gridFade: 400

    property real dimOpacity: editing ? 0.62 : 0.84
    Behavior on dimOpacity { NumberAnimation { duration: root.gridFade; easing.type: Easing.OutCubic } }

    component Dim: Rectangle {
        color: root.dimColor
        opacity: root.dimOpacity
    }
    Dim { width: root.width; height: Math.max(0, root.boxTop) }
    Dim { y: root.boxBottom; width: root.width; height: Math.max(0, root.height - y) }
    Dim { y: root.boxTop; width: Math.max(0, root.boxLeft); height: root.boxHeight }
    Dim {
        x: root.boxRight
        y: root.boxTop
        width: Math.max(0, root.width - x)
        height: root.boxHeight
    }

    Item {
        x: root.boxLeft
        y: root.boxTop
        width: root.boxWidth
        height: root.boxHeight

        Accessible.role: Accessible.Graphic
        Accessible.name: root.name

        // Light lines with a dark shade beside them show on any picture.
        Item {
            anchors.fill: parent
            opacity: root.editing ? 1 : 0
            Behavior on opacity { NumberAnimation { duration: root.gridFade; easing.type: Easing.OutCubic } }

            Repeater {
                model: 2
                Rectangle {
                    x: Math.round(parent.width * (index + 1) / 3)
                    width: 1
                    height: parent.height
                    color: "#99ffffff"
                    Rectangle { x: 1; width: Theme.hairline; height: parent.height; color: "#33000000" }
                }
            }
            Repeater {
                model: 2
                Rectangle {
                    y: Math.round(parent.height * (index + 1) / 3)
                    width: parent.width
                    height: 1
                    color: "#99ffffff"
                    Rectangle { y: 1; width: parent.width; height: Theme.hairline; color: "#33000000" }
                }
            }
        }

        Rectangle {
            anchors.fill: parent
            anchors.margins: -1
            color: "transparent"
            border.width: 1
            border.color: "#d9ffffff"
        }

        component Handle: Item {
            id: handle
            property int towardsX: 0
            property int towardsY: 0
            readonly property real thickness: 3
            readonly property real reach: Math.min(22, root.boxWidth / 2, root.boxHeight / 2)

            Rectangle {
                x: handle.towardsX < 0 ? -handle.thickness
                 : handle.towardsX > 0 ? root.boxWidth - handle.reach
                                       : Math.round((root.boxWidth - handle.reach) / 2)
                y: handle.towardsY < 0 ? -handle.thickness : root.boxHeight
                visible: handle.towardsY !== 0
                width: handle.reach + (handle.towardsX !== 0 ? handle.thickness : 0)
                height: handle.thickness
            }
            Rectangle {
                x: handle.towardsX < 0 ? -handle.thickness : root.boxWidth
                y: handle.towardsY < 0 ? -handle.thickness
                 : handle.towardsY > 0 ? root.boxHeight - handle.reach
                                       : Math.round((root.boxHeight - handle.reach) / 2)
                visible: handle.towardsX !== 0
                width: handle.thickness
                height: handle.reach + (handle.towardsY !== 0 ? handle.thickness : 0)
            }
        }
        Handle { towardsX: -1; towardsY: -1 }
        Handle { towardsX: 1; towardsY: -1 }
        Handle { towardsX: -1; towardsY: 1 }
        Handle { towardsX: 1; towardsY: 1 }
        Handle { towardsX: -1; visible: root.boxHeight > 88 }
        Handle { towardsX: 1; visible: root.boxHeight > 88 }
        Handle { towardsY: -1; visible: root.boxWidth > 88 }
        Handle { towardsY: 1; visible: root.boxWidth > 88 }
    }
}
