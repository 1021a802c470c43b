import QtQuick
import Pelmira 1.0

// A page that is read from top to bottom: fingers, keys and a wheel scroll it, and a mark at its
// right tells where it stands.
Flickable {
    id: page

    contentWidth: width
    boundsBehavior: Flickable.DragOverBounds
    flickableDirection: Flickable.VerticalFlick
    clip: true

    function scrollTo(y) {
        glide.to = range.within(y);
        glide.restart();
    }
    // Brings an item of the page wholly into sight.
    function reveal(item) {
        const wanted = range.revealing(contentY, item.mapToItem(contentItem, 0, 0).y, item.height);
        if (wanted !== contentY)
            scrollTo(wanted);
    }

    ScrollRange {
        id: range
        content: page.contentHeight
        view: page.height
    }
    Keys.onPressed: event => {
        const wanted = range.afterKey(contentY, event.key);
        event.accepted = !isNaN(wanted);
        if (event.accepted)
            scrollTo(wanted);
    }
    NumberAnimation {
        id: glide
        target: page
        property: "contentY"
        duration: Theme.motion
        easing.type: Easing.OutCubic
    }

    Rectangle {
        parent: page
        anchors.right: parent.right
        anchors.rightMargin: 3
        y: page.visibleArea.yPosition * page.height
        width: 4
        height: Math.max(24, page.visibleArea.heightRatio * page.height)
        radius: 2
        color: Theme.lightGrey
        opacity: page.moving || glide.running ? 0.8 : 0.35
        visible: page.visibleArea.heightRatio < 1
        Behavior on opacity { NumberAnimation { duration: Theme.motion } }
    }
}
