import QtQuick
import Pelmira 1.0

// The keys that aim and press on the photo.
Item {
    id: root

    required property KeyboardAim aim

    function arrow(x, y, modifiers) {
        if (modifiers & Qt.ControlModifier)
            aim.moveView(x, y);
        else
            aim.move(x, y, (modifiers & Qt.ShiftModifier) !== 0);
    }

    Keys.onPressed: event => {
        event.accepted = true;
        switch (event.key) {
        case Qt.Key_Left: arrow(-1, 0, event.modifiers); break;
        case Qt.Key_Right: arrow(1, 0, event.modifiers); break;
        case Qt.Key_Up: arrow(0, -1, event.modifiers); break;
        case Qt.Key_Down: arrow(0, 1, event.modifiers); break;
        case Qt.Key_Plus:
        case Qt.Key_Equal: aim.zoomBy(1.1); break;
        case Qt.Key_Minus: aim.zoomBy(1 / 1.1); break;
        case Qt.Key_Escape: aim.leave(); break;
        case Qt.Key_Return:
        case Qt.Key_Enter:
            if (!event.isAutoRepeat)
                aim.press();
            break;
        case Qt.Key_Space:
            // The photo itself wants to know too: under a held space bar the mouse moves it.
            event.accepted = false;
            if (!event.isAutoRepeat)
                aim.hold();
            break;
        default: event.accepted = false;
        }
    }
    Keys.onReleased: event => {
        if (event.key === Qt.Key_Space && !event.isAutoRepeat)
            aim.release();
        event.accepted = false;
    }
}
