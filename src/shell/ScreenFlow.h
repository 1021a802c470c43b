#pragma once

#include "platform/screen/ScreenStack.h"
#include "shell/AppServices.h"
#include "shell/HomeScreenDelegate.h"
#include "shell/SettingsFlow.h"

#include <QColor>
#include <QImage>

#include <functional>
#include <memory>

namespace pelmira {

class DepthPanels;
class NewHomeScreenVC;
class SaveViewController;
class ZKLPhotoPicker;

/// What follows what: every way from one screen to another is decided here, and the screens know
/// only their blocks. Home leads to the library or the camera, both to the crop tool, that to the
/// editor, and the editor to the save screen and help; the save screen to the colour of the flat
/// picture and to the background editor.
class ScreenFlow final : public HomeScreenDelegate {
public:
    /// The stack outlives the flow, the flow the screens.
    ScreenFlow(ScreenStack& screens, AppServices services);

    std::shared_ptr<NewHomeScreenVC> makeHomeScreen();
    /// Once, when the first screen stands.
    void start() { _settings.start(); }
    SettingsFlow& settings() { return _settings; }

    /// An editor stands, whatever is above it.
    bool hasCutOut() const;

    void showLibrary() override;
    void showCamera() override;
    bool canShowSettings() const override { return SettingsFlow::canShowSettings(); }
    void showSettings() override { _settings.presentSettings(); }
    void cropPhoto(const QImage& photo) override { crop(photo, false); }
    void goOnWithSavedWork(const QImage& image) override { startEditing(image, true, false); }
    bool isOnTop(const Screen& screen) const override { return _screens.topScreen() == &screen; }

private:
    void crop(const QImage& photo, bool isCamera);
    void goOn(const QImage& image, bool isCamera);
    /// Opens the editor on a photo of working size. A new photo replaces the saved work.
    void startEditing(const QImage& image, bool isResume, bool isCamera);
    void presentHelp();
    void presentSaveView(const std::shared_ptr<SaveViewController>& saveView);
    void presentChangeColor(SaveViewController& saveView,
                            std::function<void(const QColor&)> completion);
    void presentEditBackground(const std::shared_ptr<SaveViewController>& saveView);
    /// A photo for the background comes from the library, and is cropped on the stack.
    void letPickBackground(DepthPanels& panels);
    void dismiss() { _screens.dismissViewController({}); }

    ScreenStack& _screens;
    const AppServices _services;
    SettingsFlow _settings{_screens, _services};
    std::weak_ptr<NewHomeScreenVC> _homeScreen;
    std::weak_ptr<ZKLPhotoPicker> _photoPicker;
    std::weak_ptr<ZKLPhotoPicker> _backgroundPicker;
};

} // namespace pelmira
