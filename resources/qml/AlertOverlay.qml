import QtQuick

// A question of the screen's.
ModalCard {
    id: root

    required property QtObject alert

    isOpen: alert.isOpen
    accessibleName: alert.title
    onDeclined: alert.buttonPressed(false)
    onAccepted: alert.buttonPressed(true)

    ModalQuestion {
        title: root.alert.title
        message: root.alert.message
        declineText: root.alert.cancelButtonTitle
        acceptText: root.alert.actionButtonTitle
        onDeclined: root.declined()
        onAccepted: root.accepted()
    }
}
