import QtQuick
import Pelmira 1.0

// Turns while something takes its time.
IconView {
    id: root

    property bool running: true

    width: 36
    height: 36
    visible: running
    source: "icons/spinner.svg"
    tintColor: Theme.text

    RotationAnimator {
        target: root
        running: root.visible
        from: 0
        to: 360
        duration: 900
        loops: Animation.Infinite
    }
}
