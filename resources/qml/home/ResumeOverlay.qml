import QtQuick
import Pelmira 1.0

// The offer to go on with unfinished work.
ModalCard {
    id: root

    // The offer while it stands, else null.
    property ResumeView model: null

    isOpen: model !== null
    cardRadius: 16
    accessibleName: question.title
    onDeclined: model.handleNo()
    onAccepted: model.handleYes()

    Item {
        width: parent.width
        height: Math.min(180, root.height * 0.36)

        ImageView {
            readonly property real margin: root.model === null ? 0
                : root.model.shadowMargin * Math.max(picture.width, picture.height)
            anchors.fill: picture
            anchors.margins: -margin
            image: root.model !== null ? root.model.shadow : image
        }
        ImageView {
            id: picture
            anchors.centerIn: parent
            readonly property real ratio: implicitHeight > 0 ? implicitWidth / implicitHeight : 1
            width: Math.min(parent.width, parent.height * ratio)
            height: width / ratio
            image: root.model !== null ? root.model.image : image
        }
    }
    ModalQuestion {
        id: question
        title: root.model !== null ? root.model.titleLabel : ""
        message: root.model !== null ? root.model.messageLabel : ""
        declineText: root.model !== null ? root.model.noButton : ""
        acceptText: root.model !== null ? root.model.yesButton : ""
        onDeclined: root.declined()
        onAccepted: root.accepted()
    }
}
