import QtQuick

// Loads a layout file that most runs never show when it is first wanted; from then on it stays.
Loader {
    property bool wanted: false
    property url file
    property var properties: ({})

    anchors.fill: parent

    function loadOnce() {
        if (wanted && status === Loader.Null)
            setSource(file, properties);
    }
    Component.onCompleted: loadOnce()
    onWantedChanged: loadOnce()
}
