import QtQuick
import Pelmira 1.0

// The root of a screen's layout.
Pane {
    Accessible.role: Accessible.Pane
}
