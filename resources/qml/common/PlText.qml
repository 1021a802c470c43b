import QtQuick

Text {
    color: Theme.text
    font.pixelSize: Theme.bodySize
    renderType: Text.NativeRendering
    textFormat: Text.PlainText
}
