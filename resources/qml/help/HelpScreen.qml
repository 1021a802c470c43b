import QtQuick
import Pelmira 1.0

// The help page, with its title and a way out above; a sheet on wide windows.
ScreenPane {
    id: root

    required property ZKLHelpController screen

    enabled: !screen.alert.isOpen

    function scrollTo(y) {
        glide.to = Math.max(0, Math.min(y, view.contentHeight - view.height));
        glide.restart();
    }

    Rectangle {
        anchors.fill: parent
        radius: Window.window && root.width < Window.width ? Theme.barRadius : 0
        color: Theme.sheet
        border.color: Theme.hairlineColor
        border.width: radius > 0 ? Theme.hairline : 0

        // What lies below gets nothing.
        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.AllButtons
            hoverEnabled: true
        }
    }

    Item {
        id: bar
        width: parent.width
        height: 56

        BarTextButton {
            id: done
            anchors.left: parent.left
            height: parent.height
            isAction: true
            text: Localized.text("generic.done")
            key: "Esc"
            onClicked: root.screen.doneButtonPressed()
        }
        PlLabel {
            anchors.centerIn: parent
            font.pixelSize: Theme.titleSize
            font.weight: Font.DemiBold
            text: root.screen.title
        }
        Spinner {
            anchors.right: parent.right
            anchors.rightMargin: 2 * Theme.grid
            anchors.verticalCenter: parent.verticalCenter
            width: Theme.icon
            height: Theme.icon
            running: root.screen.isLoading
        }
        Rectangle {
            y: parent.height - height
            width: parent.width
            height: Theme.hairline
            color: Theme.hairlineColor
        }
    }

    Flickable {
        id: view
        y: bar.height
        width: parent.width
        height: parent.height - y - 2
        contentWidth: width
        contentHeight: text.height + 5 * Theme.grid
        boundsBehavior: Flickable.DragOverBounds
        flickableDirection: Flickable.VerticalFlick
        clip: true
        focus: true

        Keys.onPressed: event => {
            event.accepted = true;
            switch (event.key) {
            case Qt.Key_Up: root.scrollTo(contentY - 60); break;
            case Qt.Key_Down: root.scrollTo(contentY + 60); break;
            case Qt.Key_PageUp: root.scrollTo(contentY - 0.9 * height); break;
            case Qt.Key_Space:
            case Qt.Key_PageDown: root.scrollTo(contentY + 0.9 * height); break;
            case Qt.Key_Home: root.scrollTo(0); break;
            case Qt.Key_End: root.scrollTo(contentHeight); break;
            default: event.accepted = false;
            }
        }

        NumberAnimation {
            id: glide
            target: view
            property: "contentY"
            duration: Theme.motion
            easing.type: Easing.OutCubic
        }

        // An editor that can't be edited tells where in the text a place is.
        TextEdit {
            id: text
            x: Math.round((view.width - width) / 2)
            y: 2 * Theme.grid
            width: Math.min(view.width - 5 * Theme.grid, Theme.groupWidth)
            readOnly: true
            selectByMouse: false
            activeFocusOnPress: false
            textFormat: TextEdit.RichText
            wrapMode: TextEdit.Wrap
            renderType: Text.NativeRendering
            color: Theme.text
            font.pixelSize: Theme.bodySize
            text: root.screen.page
            Accessible.role: Accessible.Document
            Accessible.name: root.screen.title
            onLinkActivated: link => {
                const position = root.screen.positionOfLink(link);
                if (position >= 0)
                    root.scrollTo(y + positionToRectangle(position).y - Theme.grid);
            }
            HoverHandler {
                cursorShape: text.hoveredLink !== "" ? Qt.PointingHandCursor : Qt.ArrowCursor
            }
        }

        Rectangle {
            parent: view
            anchors.right: parent.right
            anchors.rightMargin: 3
            y: view.visibleArea.yPosition * view.height
            width: 4
            height: Math.max(24, view.visibleArea.heightRatio * view.height)
            radius: 2
            color: Theme.lightGrey
            opacity: view.moving || glide.running ? 0.8 : 0.35
            visible: view.visibleArea.heightRatio < 1
            Behavior on opacity { NumberAnimation { duration: Theme.motion } }
        }
    }

    AlertOverlay {
        parent: root.parent
        alert: root.screen.alert
    }

    Shortcut {
        sequences: [StandardKey.Cancel]
        enabled: root.enabled && !root.screen.alert.isOpen
        onActivated: root.screen.doneButtonPressed()
    }
}
