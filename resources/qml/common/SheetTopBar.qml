import QtQuick
import Pelmira 1.0

// The title of a sheet, with the way out at its left.
Item {
    id: root

    required property string title

    signal donePressed

    height: 56

    BarTextButton {
        id: done
        anchors.left: parent.left
        height: parent.height
        isAction: true
        text: Localized.text("generic.done")
        key: "Esc"
        onClicked: root.donePressed()
    }
    PlText {
        anchors.centerIn: parent
        width: parent.width - 2 * done.width
        horizontalAlignment: Text.AlignHCenter
        elide: Text.ElideRight
        font.pixelSize: Theme.titleSize
        font.weight: Font.DemiBold
        text: root.title
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    Rectangle {
        y: parent.height - height
        width: parent.width
        height: Theme.hairline
        color: Theme.hairlineColor
    }
}
