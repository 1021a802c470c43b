import QtQuick
import QtQuick.Dialogs

// The toolkit's file dialogs, loaded only where the desktop has none to offer.
Item {
    id: root

    required property QtObject owner
    property url startFolder
    property string imageFilter

    function openImage() { image.open(); }
    function openFolder() { folder.open(); }

    FileDialog {
        id: image
        currentFolder: root.startFolder
        nameFilters: [root.imageFilter]
        onAccepted: root.owner.chosen(selectedFile)
    }
    FolderDialog {
        id: folder
        currentFolder: root.startFolder
        onAccepted: root.owner.chosen(selectedFolder)
    }
}
