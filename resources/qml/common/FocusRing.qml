import QtQuick

// Shows which control the keyboard speaks to.
Rectangle {
    color: "transparent"
    border.color: Theme.buttonBlue
    border.width: 2
    radius: Theme.buttonRadius
}
