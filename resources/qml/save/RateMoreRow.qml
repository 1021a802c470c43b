import QtQuick
import Pelmira 1.0

// The ways to the store, the maker's other applications and the maker's social page, as many of them
// as there are.
Row {
    id: root

    required property RateMoreContainerView container

    readonly property int count: (container.rateButton ? 1 : 0) + (container.moreAppsButton ? 1 : 0)
                                 + (container.followButton ? 1 : 0)
    readonly property real cell: Math.floor(Math.min(160, (width - (count - 1) * spacing) / Math.max(1, count)))

    spacing: Theme.grid
    visible: !container.isHidden
    leftPadding: Math.round((width - count * cell - (count - 1) * spacing) / 2)

    component Way: Loader {
        id: way
        property InterfaceButton model
        property string iconName
        property string text
        signal clicked
        active: model !== null
        visible: active
        sourceComponent: Component {
            SaveActionButton {
                width: root.cell
                height: root.height
                model: way.model
                iconName: way.iconName
                text: way.text
                name: way.text
                onClicked: way.clicked()
            }
        }
    }

    Way {
        model: root.container.rateButton
        iconName: "star"
        text: Localized.text("savescreen.button.rate")
        onClicked: root.container.rateUsButtonPressed()
    }
    Way {
        model: root.container.moreAppsButton
        iconName: "more-apps"
        text: Localized.text("savescreen.button.more")
        onClicked: root.container.moreAppsButtonPressed()
    }
    Way {
        model: root.container.followButton
        iconName: "follow"
        text: root.container.followButtonText
        onClicked: root.container.followButtonPressed()
    }
}
