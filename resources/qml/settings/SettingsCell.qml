import QtQuick
import QtQuick.Templates as T
import Pelmira 1.0

// A row: its icon, its words, and at the right that it leads on. One has a switch of its own there,
// with a line that says what it is about.
T.AbstractButton {
    id: control

    property string iconName
    property InterfaceButton toggle: null
    property bool isLast: false

    signal switched(bool on)
    signal reached

    height: Math.max(52, words.height + 2 * Theme.grid)
    focusPolicy: Qt.TabFocus
    Accessible.name: text
    Accessible.description: hint.visible ? hint.text : ""
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    onActiveFocusChanged: if (activeFocus) reached()

    background: Item {
        Rectangle {
            anchors.fill: parent
            anchors.margins: 3
            radius: Theme.buttonRadius - 3
            color: control.pressed ? Theme.pressed : Theme.hover
            opacity: control.pressed || hover.hovered ? 1 : 0
            Behavior on opacity { NumberAnimation { duration: Theme.quick } }
        }
        Rectangle {
            x: words.x
            y: parent.height - height
            width: parent.width - x
            height: Theme.hairline
            color: Theme.hairlineColor
            visible: !control.isLast
        }
        FocusRing {
            visible: control.visualFocus
            anchors.fill: parent
        }
    }

    contentItem: Item {
        IconView {
            id: icon
            x: 2 * Theme.grid
            y: Math.round((parent.height - height) / 2)
            width: Theme.icon
            height: Theme.icon
            source: control.iconName === "" ? "" : "icons/" + control.iconName + ".svg"
            tintColor: Theme.buttonBlue
        }
        Column {
            id: words
            x: icon.x + icon.width + 2 * Theme.grid
            y: Math.round((parent.height - height) / 2)
            width: trailing.x - x - 1.5 * Theme.grid
            spacing: 2
            PlText {
                width: parent.width
                wrapMode: Text.Wrap
                font.pixelSize: Theme.bodySize + 1
                text: control.text
            }
            PlText {
                id: hint
                width: parent.width
                visible: control.toggle !== null
                wrapMode: Text.Wrap
                font.pixelSize: 13
                color: Theme.secondaryText
                text: Localized.text("settings.eventLog.hint")
            }
        }
        Item {
            id: trailing
            x: parent.width - width - 2 * Theme.grid
            width: control.toggle ? 52 : 16
            height: parent.height

            IconView {
                anchors.centerIn: parent
                visible: control.toggle === null && control.iconName !== ""
                width: 16
                height: 16
                source: "icons/chevron.svg"
                tintColor: Theme.secondaryText
            }
            Loader {
                anchors.centerIn: parent
                active: control.toggle !== null
                sourceComponent: PlSwitch {
                    model: control.toggle
                    name: Localized.text("settings.eventLog.keep")
                    onRequested: isOn => control.switched(isOn)
                    onActiveFocusChanged: if (activeFocus) control.reached()
                }
            }
        }
    }

    HoverHandler {
        id: hover
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
    }
}
