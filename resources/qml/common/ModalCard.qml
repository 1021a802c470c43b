import QtQuick
import Pelmira 1.0

// A card in the middle of a dimmed window, asking something. Escape declines, Enter accepts; the
// screen behind gets nothing while it is open.
FocusScope {
    id: root

    property bool isOpen: false
    property bool isCovered: false // by something that comes first
    property string accessibleName
    property real cardRadius: Theme.barRadius
    default property alias content: column.data
    readonly property size cardSize: Qt.size(card.width, card.height)
    property point cardPosition: Qt.point((width - cardSize.width) / 2, (height - cardSize.height) / 2)

    signal declined
    signal accepted

    anchors.fill: parent
    enabled: isOpen && !isCovered
    visible: isOpen || opacity > 0
    opacity: isOpen ? 1 : 0
    Behavior on opacity { NumberAnimation { duration: Theme.motion; easing.type: Easing.OutCubic } }
    onEnabledChanged: if (enabled) card.forceActiveFocus()
    Component.onCompleted: if (enabled) card.forceActiveFocus()

    Keys.onEscapePressed: declined()
    Keys.onReturnPressed: accepted()
    Keys.onEnterPressed: accepted()

    Rectangle {
        anchors.fill: parent
        color: "#99000000"
        MultiPointTouchArea {
            anchors.fill: parent
        }
        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.AllButtons
            hoverEnabled: true
            onWheel: wheel => wheel.accepted = true
        }
    }

    Rectangle {
        id: card
        x: Math.round(root.cardPosition.x)
        y: Math.round(root.cardPosition.y)
        width: Math.min(parent.width - 6 * Theme.grid, 340)
        height: column.height + 5 * Theme.grid
        radius: root.cardRadius
        color: Theme.raised
        border.color: Theme.hairlineColor
        border.width: Theme.hairline
        scale: root.isOpen ? 1 : 0.96
        Behavior on scale { NumberAnimation { duration: Theme.motion; easing.type: Easing.OutCubic } }

        // What has the keyboard is what is read out.
        focus: true
        Accessible.role: Accessible.Dialog
        Accessible.focusable: true
        Accessible.name: root.accessibleName

        Column {
            id: column
            x: 3 * Theme.grid
            y: 2.5 * Theme.grid
            width: parent.width - 6 * Theme.grid
            spacing: Theme.grid
        }
    }
}
