import QtQuick
import QtQuick.Templates as T
import Pelmira 1.0

// A button of a question: the one that acts stands out.
T.AbstractButton {
    id: button

    property bool isAction: false

    height: 48
    leftPadding: Theme.grid
    rightPadding: Theme.grid
    focusPolicy: Qt.TabFocus
    Accessible.name: text
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    background: Rectangle {
        radius: Theme.buttonRadius
        color: button.isAction ? (button.pressed ? Qt.darker(Theme.buttonBlue, 1.2) : Theme.buttonBlue)
                               : (button.pressed ? Theme.pressed : Theme.hover)
        FocusRing {
            visible: button.visualFocus
            anchors.fill: parent
            radius: Theme.buttonRadius
        }
    }
    contentItem: PlText {
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        color: button.isAction ? Theme.onAction : Theme.text
        font.weight: Font.DemiBold
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 11
        elide: Text.ElideRight
        text: button.text
    }
}
