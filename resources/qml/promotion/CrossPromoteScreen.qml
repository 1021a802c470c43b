import QtQuick
import Pelmira 1.0

// The maker's other applications: a card with the main one above pages of the others. A low window is
// filled by it, the main one in a line.
ScreenPane {
    id: root

    required property ZKLCrossPromoteVC screen

    readonly property bool low: screen.mainContentHeight < 100

    Rectangle {
        anchors.fill: parent
        color: "#99000000"
        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.AllButtons
            hoverEnabled: true
            onWheel: wheel => wheel.accepted = true
            onClicked: root.screen.closeButtonPressed()
        }
    }

    Rectangle {
        id: container
        anchors.centerIn: parent
        width: root.screen.hasBackgroundView ? Math.min(parent.width - 4 * Theme.grid, 560) : parent.width
        height: root.screen.containerHeight
        radius: root.screen.hasBackgroundView ? 10 : 0
        color: Theme.sheet
        border.color: Theme.hairlineColor
        border.width: root.screen.hasBackgroundView ? Theme.hairline : 0

        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.AllButtons
            onWheel: wheel => wheel.accepted = true
        }

        Item {
            id: bar
            width: parent.width
            height: root.low ? 48 : 56

            PlText {
                anchors.centerIn: parent
                width: parent.width - 2 * close.width
                horizontalAlignment: Text.AlignHCenter
                elide: Text.ElideRight
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: 12
                font.pixelSize: Theme.titleSize
                font.weight: Font.DemiBold
                text: Localized.text("moreapps.title")
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            BarTextButton {
                id: close
                anchors.right: parent.right
                height: parent.height
                isAction: true
                text: Localized.text("moreapps.close")
                key: "Esc"
                onClicked: root.screen.closeButtonPressed()
            }
            Rectangle {
                y: parent.height - height
                width: parent.width
                height: Theme.hairline
                color: Theme.hairlineColor
            }
        }

        CrossPromoteMain {
            id: main
            y: bar.height
            width: parent.width
            height: visible ? root.screen.mainContentHeight : 0
            visible: root.screen.mainEntry.isShown
            low: root.low
            screen: root.screen
        }

        Flickable {
            id: pages
            y: main.y + main.height
            width: parent.width
            height: parent.height - y - dots.height
            contentWidth: width * root.screen.numPages
            contentHeight: height
            flickableDirection: Flickable.HorizontalFlick
            boundsBehavior: root.screen.numPages > 1 ? Flickable.DragOverBounds : Flickable.StopAtBounds
            interactive: root.screen.numPages > 1
            clip: true

            function toPage(page) {
                glide.to = root.screen.offsetOfPage(page, width);
                glide.restart();
            }
            onContentXChanged: root.screen.scrolled(contentX, width)
            onMovementEnded: toPage(root.screen.currentPage)
            // A resized window shows the page that it showed.
            onWidthChanged: {
                glide.stop();
                contentX = root.screen.currentPage * width;
            }

            NumberAnimation {
                id: glide
                target: pages
                property: "contentX"
                duration: Theme.motion
                easing.type: Easing.OutCubic
            }

            Repeater {
                model: root.screen.appEntries
                CrossPromoteButton {
                    required property CrossPromoteItem modelData
                    required property int index
                    readonly property point middle: {
                        root.screen.numPages; // also for a changed list
                        return root.screen.centerForButtonWithIndex(index, pages.width, pages.height);
                    }
                    x: Math.round(middle.x - width / 2)
                    y: Math.round(middle.y - height / 2)
                    visible: modelData.isShown
                    entry: modelData
                    onClicked: root.screen.appEntryButtonPressed(index)
                    onActiveFocusChanged: if (activeFocus) pages.toPage(root.screen.pageOfEntry(index))
                }
            }
        }

        Row {
            id: dots
            anchors.horizontalCenter: parent.horizontalCenter
            y: parent.height - height
            height: root.screen.numPages > 1 ? (root.low ? 28 : 44) : Theme.grid

            Repeater {
                model: root.screen.numPages > 1 ? root.screen.numPages : 0
                Item {
                    required property int index
                    width: Math.min(Theme.target, (container.width - 4 * Theme.grid) / root.screen.numPages)
                    height: dots.height
                    Accessible.role: Accessible.PageTab
                    Accessible.name: Localized.text("moreapps.page").arg(index + 1).arg(root.screen.numPages)
                    Accessible.selected: index === root.screen.currentPage
                    Accessible.onPressAction: pages.toPage(index)

                    Rectangle {
                        anchors.centerIn: parent
                        width: Math.min(8, parent.width - 2)
                        height: width
                        radius: width / 2
                        color: parent.index === root.screen.currentPage ? Theme.text : Theme.darkGrey
                        Behavior on color { ColorAnimation { duration: Theme.quick } }
                    }
                    TapHandler {
                        gesturePolicy: TapHandler.ReleaseWithinBounds
                        onTapped: pages.toPage(parent.index)
                    }
                }
            }
        }
    }

    ProgressOverlay {
        hud: root.screen.progressHUD
    }

    component Key: Shortcut {
        enabled: root.enabled
    }
    Key {
        sequences: [StandardKey.Cancel]
        onActivated: root.screen.closeButtonPressed()
    }
    Key {
        sequence: "Left"
        onActivated: pages.toPage(root.screen.currentPage - 1)
    }
    Key {
        sequence: "Right"
        onActivated: pages.toPage(root.screen.currentPage + 1)
    }
}
