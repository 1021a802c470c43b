import QtQuick
import QtQuick.Dialogs

// The toolkit's file dialogs, loaded only where the desktop has none to offer.
Item {
    id: root

    required property QtObject owner

    function openImage() { image.open(); }
    function openFolder() { folder.open(); }

    FileDialog {
        id: image
        onAccepted: root.owner.chosen(selectedFile)
    }
    FolderDialog {
        id: folder
        onAccepted: root.owner.chosen(selectedFolder)
    }
}
