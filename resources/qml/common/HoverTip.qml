import QtQuick

// Names a button under a resting mouse, with the key that does the same.
Item {
    id: root

    property string text
    property string key
    property bool above: true
    required property bool wanted

    anchors.fill: parent
    z: 100

    Timer {
        id: rest
        interval: 600
        running: root.wanted && root.text !== ""
    }

    Rectangle {
        readonly property bool shown: root.wanted && root.text !== "" && !rest.running
        readonly property Item page: root.Window.contentItem

        visible: opacity > 0
        opacity: shown ? 1 : 0
        width: row.width + 2 * Theme.grid
        height: row.height + Theme.grid
        radius: Theme.grid
        color: Theme.raised
        border.color: Theme.hairlineColor
        border.width: Theme.hairline
        y: root.above ? -height - Theme.grid : root.height + Theme.grid
        x: {
            const centred = Math.round((root.width - width) / 2);
            if (!shown || !page)
                return centred;
            const left = root.mapToItem(page, 0, 0).x;
            return Math.max(Theme.grid - left,
                            Math.min(centred, page.width - Theme.grid - width - left));
        }
        Behavior on opacity { NumberAnimation { duration: Theme.quick } }

        Row {
            id: row
            anchors.centerIn: parent
            spacing: Theme.grid
            PlText {
                anchors.verticalCenter: parent.verticalCenter
                font.pixelSize: 13
                text: root.text
            }
            Rectangle {
                anchors.verticalCenter: parent.verticalCenter
                visible: root.key !== ""
                width: Math.max(height, keyText.implicitWidth + Theme.grid)
                height: keyText.implicitHeight + 4
                radius: 4
                color: Theme.pressed
                PlText {
                    id: keyText
                    anchors.centerIn: parent
                    font.pixelSize: 12
                    color: Theme.secondaryText
                    text: root.key
                }
            }
        }
    }
}
