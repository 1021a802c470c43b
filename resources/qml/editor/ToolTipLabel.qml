import QtQuick
import Pelmira 1.0

// The screen places and times it; here the text is measured and shown.
Rectangle {
    id: root

    required property ToolTip toolTip

    x: toolTip.frame.x
    y: toolTip.frame.y
    width: toolTip.frame.width
    height: toolTip.frame.height
    radius: height / 2
    color: Theme.darkGrey
    border.color: "black"
    border.width: 1
    opacity: toolTip.alpha
    visible: opacity > 0
    Behavior on opacity {
        NumberAnimation { duration: root.toolTip.fadeMilliseconds; easing.type: Easing.OutCubic }
    }

    Accessible.role: Accessible.ToolTip
    Accessible.name: toolTip.text

    PlText {
        id: label
        anchors.centerIn: parent
        text: root.toolTip.text
    }
    Binding {
        target: root.toolTip
        property: "fittedSize"
        value: Qt.size(Math.ceil(label.implicitWidth), Math.ceil(label.implicitHeight))
    }
}
