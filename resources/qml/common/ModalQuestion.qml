import QtQuick

// The words and the buttons of a card that asks something: one that declines, with one that
// accepts beside it, or several above it.
Column {
    id: root

    property string title
    property string message
    property string declineText
    property string acceptText
    property var acceptTexts: acceptText === "" ? [] : [acceptText]

    signal declined
    signal accepted(int index)

    width: parent.width
    spacing: Theme.grid

    PlLabel {
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        font.pixelSize: Theme.titleSize
        font.weight: Font.DemiBold
        visible: text !== ""
        text: root.title
    }
    PlLabel {
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        lineHeight: 1.2
        color: Theme.secondaryText
        visible: text !== ""
        text: root.message
    }
    Item { width: 1; height: Theme.grid }
    Repeater {
        model: root.acceptTexts.length > 1 ? root.acceptTexts : []
        AlertButton {
            required property string modelData
            required property int index
            width: root.width
            isAction: index === 0
            text: modelData
            onClicked: root.accepted(index)
        }
    }
    Row {
        width: parent.width
        spacing: Theme.grid

        AlertButton {
            width: accept.visible ? (parent.width - parent.spacing) / 2 : parent.width
            isAction: root.acceptTexts.length === 0
            text: root.declineText
            onClicked: root.declined()
        }
        AlertButton {
            id: accept
            visible: root.acceptTexts.length === 1
            width: (parent.width - parent.spacing) / 2
            isAction: true
            text: visible ? root.acceptTexts[0] : ""
            onClicked: root.accepted(0)
        }
    }
}
