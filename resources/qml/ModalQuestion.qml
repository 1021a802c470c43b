import QtQuick

// The words and the two buttons of a card that asks something.
Column {
    id: root

    property string title
    property string message
    property string declineText
    property string acceptText

    signal declined
    signal accepted

    width: parent.width
    spacing: Theme.grid

    PlText {
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        font.pixelSize: Theme.titleSize
        font.weight: Font.DemiBold
        text: root.title
    }
    PlText {
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        lineHeight: 1.2
        color: Theme.secondaryText
        text: root.message
    }
    Item { width: 1; height: Theme.grid }
    Row {
        width: parent.width
        spacing: Theme.grid

        AlertButton {
            width: (parent.width - parent.spacing) / 2
            text: root.declineText
            onClicked: root.declined()
        }
        AlertButton {
            width: (parent.width - parent.spacing) / 2
            isAction: true
            text: root.acceptText
            onClicked: root.accepted()
        }
    }
}
