import QtQuick
import QtQuick.Templates as T
import Pelmira 1.0

// The tabs: icons over titles, the last one that is seen cut in half where there are more.
Item {
    id: root

    required property ScrollingTabbar tabbar
    required property bool isWide

    BarPanel {
        anchors.fill: parent
        // Its outline shows only at the upper edge.
        anchors.margins: -1
        anchors.topMargin: 0
        color: root.isWide ? Theme.sheet : Theme.bar
    }

    ScrollStrip {
        id: strip
        anchors.fill: parent
        contentWidth: root.tabbar.contentSize.width
        ground: Theme.sheet

        Repeater {
            model: root.tabbar.buttons
            T.AbstractButton {
                id: control

                required property TabButton modelData

                x: modelData.frame.x
                y: modelData.frame.y
                width: modelData.frame.width
                height: modelData.frame.height
                enabled: modelData.enabled
                focusPolicy: Qt.TabFocus
                text: modelData.title
                Accessible.role: Accessible.PageTab
                Accessible.name: text
                Keys.onReturnPressed: control.clicked()
                Keys.onEnterPressed: control.clicked()
                onClicked: root.tabbar.buttonPressed(modelData)
                onVisualFocusChanged: if (visualFocus) strip.reveal(control)

                background: Item {
                    Rectangle {
                        anchors.fill: parent
                        anchors.margins: -4
                        anchors.leftMargin: 2
                        anchors.rightMargin: 2
                        radius: Theme.buttonRadius
                        color: control.pressed ? Theme.pressed : Theme.hover
                        opacity: control.pressed || hover.hovered ? 1 : 0
                        Behavior on opacity { NumberAnimation { duration: Theme.quick } }
                    }
                    FocusRing {
                        visible: control.visualFocus
                        anchors.fill: parent
                        anchors.margins: -4
                        anchors.leftMargin: 2
                        anchors.rightMargin: 2
                    }
                }
                contentItem: Item {
                    scale: control.pressed ? 0.94 : 1
                    Behavior on scale { NumberAnimation { duration: Theme.quick } }
                    // The icon over its title, twelve points between.
                    IconView {
                        id: icon
                        anchors.horizontalCenter: parent.horizontalCenter
                        y: Math.round((parent.height - 24 - 12 - 14) / 2)
                        width: 24
                        height: 24
                        source: "icons/" + control.modelData.imageName + ".svg"
                        tintColor: control.modelData.tintColor
                    }
                    PlText {
                        anchors.horizontalCenter: parent.horizontalCenter
                        y: icon.y + 36
                        width: parent.width - 4
                        height: 14
                        horizontalAlignment: Text.AlignHCenter
                        verticalAlignment: Text.AlignVCenter
                        fontSizeMode: Text.HorizontalFit
                        minimumPixelSize: Math.round(root.tabbar.fontSize / 2)
                        font.pixelSize: root.tabbar.fontSize
                        color: control.enabled ? control.modelData.tintColor : Theme.darkGrey
                        text: control.text
                    }
                }
                HoverHandler {
                    id: hover
                    acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
                }
            }
        }
        // Not by disabling them, which would take the keyboard's ring from the tab just pressed.
        MouseArea {
            parent: strip
            anchors.fill: parent
            visible: !root.tabbar.userInteractionEnabled
        }
        Connections {
            target: root.tabbar
            function onScrolledTo(offset) { strip.scrollTo(offset) }
        }
    }
}
