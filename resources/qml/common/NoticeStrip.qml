import QtQuick

// One line of news, shown while `text` holds any.
Rectangle {
    id: root

    property string text
    property real maximumWidth: 560

    // The last words stay readable while the strip fades.
    property string shownText

    onTextChanged: if (text !== "") shownText = text

    width: Math.min(maximumWidth, Math.ceil(measure.implicitWidth) + 40)
    height: label.implicitHeight + 24
    radius: Math.min(height / 2, Theme.barRadius)
    color: Theme.raised
    border.color: Theme.hairlineColor
    border.width: Theme.hairline
    opacity: text !== "" ? 1 : 0
    visible: opacity > 0
    transform: Translate {
        y: root.text !== "" ? 0 : -Theme.grid
        Behavior on y { NumberAnimation { duration: Theme.motion; easing.type: Easing.OutCubic } }
    }
    Behavior on opacity { NumberAnimation { duration: Theme.motion; easing.type: Easing.OutCubic } }

    Accessible.role: Accessible.AlertMessage
    Accessible.name: shownText

    PlText {
        id: measure
        visible: false
        text: root.shownText
    }
    PlText {
        id: label
        anchors.centerIn: parent
        width: root.width - 40
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        lineHeight: 1.15
        maximumLineCount: 4
        elide: Text.ElideRight
        text: root.shownText
    }
}
