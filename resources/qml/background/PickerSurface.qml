import QtQuick
import Pelmira 1.0

// A picture of colours on which one is picked by a finger, a mouse or the arrow keys. Places are
// shares of its width and height.
Item {
    id: root

    property alias image: view.image
    required property string name
    required property string valueText
    required property color picked
    required property Item loupe
    property real markX: 0
    property real markY: 0.5
    property bool isLine: false

    signal moved(real x, real y)

    activeFocusOnTab: true
    Accessible.role: Accessible.Slider
    Accessible.name: name
    Accessible.description: valueText

    // The object's keys leave the arrows to it.
    readonly property bool takesArrows: true
    PickerMark { id: keys }
    Keys.onPressed: event => {
        const place = keys.afterKey(Qt.point(markX, markY), event.key,
                                    (event.modifiers & Qt.ShiftModifier) !== 0);
        event.accepted = !isNaN(place.x);
        if (event.accepted)
            moved(place.x, place.y);
    }

    // A line takes the finger over more than its own height.
    Item {
        id: ground
        anchors.fill: parent
        anchors.topMargin: root.isLine ? (root.height - 28) / 2 : 0
        anchors.bottomMargin: anchors.topMargin

        ImageView {
            id: view
            anchors.fill: parent
            radius: root.isLine ? height / 2 : Theme.buttonRadius - 4
        }
        Rectangle {
            anchors.fill: parent
            radius: view.radius
            color: "transparent"
            border.color: "#33ffffff"
            border.width: 1
        }
        FocusRing {
            visible: root.activeFocus
            anchors.fill: parent
            anchors.margins: -3
            radius: view.radius + 3
        }
        Rectangle {
            id: mark
            width: root.isLine ? 24 : 20
            height: width
            radius: width / 2
            x: Math.max(2, Math.min(parent.width - width - 2, root.markX * parent.width - width / 2))
            y: Math.max(2, Math.min(parent.height - height - 2, root.markY * parent.height - height / 2))
            color: root.picked
            border.color: "white"
            border.width: 3
            Rectangle {
                anchors.fill: parent
                anchors.margins: -1
                radius: width / 2
                color: "transparent"
                border.color: "#66000000"
                border.width: 1
            }
        }
    }

    MouseArea {
        anchors.fill: parent
        preventStealing: true

        function pick(mouse) {
            root.moved(mouse.x / width, (mouse.y - ground.y) / ground.height);
            root.loupe.show(root, Math.max(0, Math.min(width, mouse.x)),
                            root.isLine ? 0 : Math.max(0, Math.min(height, mouse.y)), root.picked);
        }
        onPressed: mouse => pick(mouse)
        onPositionChanged: mouse => pick(mouse)
        onReleased: root.loupe.hide()
        onCanceled: root.loupe.hide()
    }
}
