import QtQuick
import Pelmira 1.0

// A question of the screen's.
ModalCard {
    id: root

    required property Alert alert

    isOpen: alert.isOpen
    accessibleName: alert.title !== "" ? alert.title : alert.message
    cardPosition: alert.positionForCard(cardSize, alert.sourceRect, Qt.size(width, height))
    onDeclined: alert.buttonPressed(false)
    onAccepted: alert.buttonPressed(true)

    ModalQuestion {
        title: root.alert.title
        message: root.alert.message
        declineText: root.alert.cancelButtonTitle
        acceptTexts: root.alert.actionButtonTitles
        onDeclined: root.declined()
        onAccepted: index => root.alert.actionButtonPressed(index)
    }
}
