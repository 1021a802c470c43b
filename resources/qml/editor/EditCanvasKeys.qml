import QtQuick
import Pelmira 1.0

// The keys that aim and press on the photo.
Item {
    required property KeyboardAim aim

    Keys.onPressed: event =>
        event.accepted = aim.keyPressed(event.key, event.modifiers, event.isAutoRepeat)
    Keys.onReleased: event => {
        aim.keyReleased(event.key, event.isAutoRepeat);
        event.accepted = false;
    }
}
