#pragma once

#include "platform/screen/ScreenStack.h"
#include "promotion/ZKLCrossPromoteManager.h"
#include "settings/EventLog.h"
#include "shell/AppServices.h"

#include <memory>

namespace pelmira {

class SaveViewController;
class SettingsVC;

/// Everything that leads out of the application, and what follows what there: the settings and what
/// stands behind their rows, and the same ways from the save screen. The screens and the
/// services outlive this.
class SettingsFlow {
public:
    SettingsFlow(ScreenStack& screens, const AppServices& services);
    ~SettingsFlow();

    /// Once, at the launch: from here on events are noted, and the list of other applications is
    /// fetched if the maker has one.
    void start();

    ZKLCrossPromoteManager& crossPromote() { return _crossPromote; }

    /// Whether the maker has filled in what the settings need.
    static bool canShowSettings();
    void presentSettings();
    /// Connects the buttons of a save screen, and what it asks at the end.
    void connectSaveView(const std::shared_ptr<SaveViewController>& saveView);

private:
    std::shared_ptr<SettingsVC> makeSettings();
    void presentEventLog();
    void requestReview(SaveViewController& saveView);

    ScreenStack& _screens;
    const AppServices& _services;
    EventLog _eventLog;
    ZKLCrossPromoteManager _crossPromote;
};

} // namespace pelmira
