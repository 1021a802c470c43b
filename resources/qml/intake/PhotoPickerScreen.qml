import QtQuick
import Pelmira 1.0

// The library: all photos in a grid, newest first.
ScreenPane {
    id: root

    required property ZKLPhotoPicker screen

    readonly property bool active: visible && enabled

    Rectangle {
        anchors.fill: parent
        color: Theme.ground
    }

    GridView {
        id: grid
        anchors.fill: parent
        topMargin: bar.height + header.height
        bottomMargin: Theme.grid
        focus: true
        activeFocusOnTab: true
        cellWidth: root.screen.cellSize
        cellHeight: root.screen.cellSize
        cacheBuffer: 2 * cellHeight
        model: root.screen.photos
        currentIndex: -1
        keyNavigationEnabled: true
        delegate: PhotoCell {
            isLoading: root.screen.loadingRow === index
            isCurrent: GridView.isCurrentItem && grid.activeFocus
            cellSize: root.screen.cellSize
            onTapped: root.screen.photoTapped(index)
        }

        function tellWhatIsSeen() { root.screen.didScroll(contentY - originY, height); }
        onContentYChanged: tellWhatIsSeen()
        onHeightChanged: tellWhatIsSeen()
        onCountChanged: tellWhatIsSeen()
        Connections {
            target: root.screen
            function onLayoutChanged() { grid.tellWhatIsSeen(); }
            function onPhotosChanged() { grid.tellWhatIsSeen(); }
        }
        Component.onCompleted: positionViewAtBeginning()

        Keys.onReturnPressed: root.screen.photoTapped(currentIndex)
        Keys.onEnterPressed: root.screen.photoTapped(currentIndex)
        // Nothing is marked before a key is pressed.
        property bool keysAreUsed: false
        onActiveFocusChanged: if (activeFocus && keysAreUsed && currentIndex < 0) currentIndex = 0

        Accessible.role: Accessible.List
        Accessible.name: Localized.text("photopicker.title")

        Keys.onPressed: event => {
            keysAreUsed = true;
            if (currentIndex < 0 && event.key >= Qt.Key_Left && event.key <= Qt.Key_Down) {
                currentIndex = 0;
                event.accepted = true;
            }
        }
    }

    Column {
        anchors.centerIn: parent
        width: Math.min(root.width - 6 * Theme.grid, 360)
        spacing: 2 * Theme.grid
        visible: root.screen.placeholder !== ""

        PlLabel {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WrapAtWordBoundaryOrAnywhere
            lineHeight: 1.25
            color: Theme.secondaryText
            text: root.screen.placeholder
        }
        WideButton {
            width: parent.width
            visible: root.screen.canChooseFolder
            text: Localized.text("permission.button.choose")
            onClicked: root.screen.chooseFolderButtonTapped()
        }
    }

    Item {
        id: bar
        width: parent.width
        height: 56

        BarPanel {
            anchors.fill: parent
            // Its outline shows only at the lower edge.
            anchors.margins: -1
            anchors.bottomMargin: 0
        }
        BarTextButton {
            anchors.verticalCenter: parent.verticalCenter
            text: Localized.text("photopicker.cancel")
            key: "Esc"
            onClicked: root.screen.cancelButtonTapped()
        }
        PlLabel {
            anchors.centerIn: parent
            font.pixelSize: Theme.titleSize
            font.weight: Font.DemiBold
            text: Localized.text("photopicker.title")
        }
        BarTextButton {
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            isAction: true
            text: Localized.text("photopicker.browse")
            key: "Ctrl+O"
            onClicked: root.screen.browseButtonTapped()
        }
    }
    Rectangle {
        id: header
        readonly property LimitedModeHeaderView model: root.screen.limitedModeHeaderView
        anchors.top: bar.bottom
        width: parent.width
        height: model !== null ? limited.implicitHeight + 2 * Theme.grid : 0
        visible: model !== null
        color: model !== null && model.dark ? Theme.raised : Theme.text

        PlLabel {
            id: limited
            anchors.centerIn: parent
            width: parent.width - 4 * Theme.grid
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            font.pixelSize: 13
            color: header.model !== null && header.model.dark ? Theme.text : Theme.onAction
            text: header.model !== null ? header.model.text : ""
        }
    }

    NoticeStrip {
        anchors.horizontalCenter: parent.horizontalCenter
        y: bar.height + header.height + Theme.grid
        maximumWidth: Math.min(root.width - 4 * Theme.grid, 560)
        text: root.screen.loader.message
    }

    DropArea {
        anchors.fill: parent
        keys: ["text/uri-list"]
        onDropped: event => root.screen.openUrls(event.urls)
    }
    Shortcut {
        sequence: "Esc"
        enabled: root.active
        onActivated: root.screen.cancelButtonTapped()
    }
    Shortcut {
        sequences: [StandardKey.Open]
        enabled: root.active
        onActivated: root.screen.browseButtonTapped()
    }
}
