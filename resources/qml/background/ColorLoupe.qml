import QtQuick

// The colour under the finger, beside it.
Rectangle {
    id: root

    property point target

    // A point of an item.
    function show(item, x, y, picked) {
        color = picked;
        target = item.mapToItem(parent, x, y);
        shown = true;
    }
    function hide() { shown = false }

    property bool shown: false
    readonly property bool fitsAbove: target.y > height + 28

    x: Math.max(8, Math.min(parent.width - width - 8,
                            fitsAbove ? target.x - width / 2 : target.x - width - 36))
    y: fitsAbove ? target.y - height - 28 : Math.max(8, target.y - height / 2)
    z: 10
    width: 56
    height: 56
    radius: 28
    border.color: "white"
    border.width: 3
    scale: shown ? 1 : 0.6
    opacity: shown ? 1 : 0
    visible: opacity > 0
    Behavior on opacity { NumberAnimation { duration: Theme.quick } }
    Behavior on scale { NumberAnimation { duration: Theme.quick; easing.type: Easing.OutCubic } }
}
