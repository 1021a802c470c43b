#pragma once

#include "controls/InterfaceButton.h"

#include <QObject>

#include <functional>

namespace pelmira {

/// The buttons of the save screen that lead to the store, the maker's other applications and the
/// maker's social page. One that would lead nowhere isn't offered, and a low screen has none.
class RateMoreContainerView final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isHidden READ isHidden NOTIFY changed)
    Q_PROPERTY(pelmira::InterfaceButton* rateButton READ rateButton NOTIFY changed)
    Q_PROPERTY(pelmira::InterfaceButton* moreAppsButton READ moreAppsButton NOTIFY changed)
    Q_PROPERTY(pelmira::InterfaceButton* followButton READ followButton NOTIFY changed)
    Q_PROPERTY(QString followButtonText READ followButtonText CONSTANT)

public:
    /// What a press does; without a block the button isn't offered.
    struct Blocks {
        std::function<void()> rate;
        std::function<void()> showMoreApps;
        std::function<void()> follow;
    };

    void setBlocks(Blocks blocks);
    /// The screen's height in points. Once it was too low the buttons stay away.
    void layoutForHeight(double height);

    Q_INVOKABLE void rateUsButtonPressed();
    Q_INVOKABLE void moreAppsButtonPressed();
    Q_INVOKABLE void followButtonPressed();

    bool isHidden() const;
    InterfaceButton* rateButton() { return _blocks.rate ? &_rateButton : nullptr; }
    InterfaceButton* moreAppsButton() { return _blocks.showMoreApps ? &_moreAppsButton : nullptr; }
    InterfaceButton* followButton() { return _blocks.follow ? &_followButton : nullptr; }
    static QString followButtonText();

Q_SIGNALS:
    void changed();

private:
    Blocks _blocks;
    bool _wasTooLow = false;
    InterfaceButton _rateButton;
    InterfaceButton _moreAppsButton;
    InterfaceButton _followButton;
};

} // namespace pelmira
