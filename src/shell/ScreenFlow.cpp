#include "shell/ScreenFlow.h"

#include "background_editor/colors/ChangeColorVC.h"
#include "background_editor/screen/EditBackgroundVC.h"
#include "controls/ZKLConfigManager.h"
#include "crop/TOCropViewController.h"
#include "export/SaveImageFormatter.h"
#include "export/SaveViewController.h"
#include "help/ZKLHelpController.h"
#include "intake/CameraPicker.h"
#include "intake/PhotoResize.h"
#include "intake/ZKLPhotoPicker.h"
#include "mask_editor/screen/ViewController.h"
#include "persistence/resume/ResumeWorkHelper.h"
#include "platform/base/Log.h"
#include "platform/base/RunInBackground.h"
#include "platform/base/RunLoop.h"
#include "platform/storage/UserDefaults.h"
#include "platform/text/LocalizedStrings.h"
#include "shell/NewHomeScreenVC.h"

#include <utility>

namespace pelmira {

ScreenFlow::ScreenFlow(ScreenStack& screens, AppServices services)
    : _screens(screens), _services(std::move(services))
{
}

std::shared_ptr<NewHomeScreenVC> ScreenFlow::makeHomeScreen()
{
    const auto home = std::make_shared<NewHomeScreenVC>(*this, _services);
    _homeScreen = home;
    return home;
}

bool ScreenFlow::hasCutOut() const
{
    return _screens.holds<ViewController>();
}

void ScreenFlow::showLibrary()
{
    const auto picker = std::make_shared<ZKLPhotoPicker>(_services.dialogs);
    picker->dismissBlock = [this] { dismiss(); };
    picker->selectionBlock = [this, shown = picker.get()](const QImage& photo) {
        if (isOnTop(*shown))
            crop(photo, false);
    };
    _photoPicker = picker;
    _screens.presentViewController(picker, ModalPresentationStyle::FullScreen);
}

void ScreenFlow::showCamera()
{
    const auto camera = std::make_shared<CameraPicker>(_services.makeCamera);
    camera->requestAccessBlock = _services.requestCameraAccess;
    camera->didFinishPickingMedia = [this, shown = camera.get()](const QImage& photo) {
        if (!isOnTop(*shown))
            return;
        if (photo.isNull())
            dismiss();
        else
            crop(photo, true);
    };
    camera->didCancel = [this] { dismiss(); };
    _screens.presentViewController(camera, ModalPresentationStyle::FullScreen);
}

void ScreenFlow::crop(const QImage& photo, bool isCamera)
{
    const auto cropTool = TOCropViewController::initWithImage(photo);
    if (!cropTool)
        return;
    cropTool->didCropToImage =
        [this, isCamera, weak = std::weak_ptr(cropTool)](const QImage& cropped, const QRect&) {
            if (cropped.isNull())
                return;
            // A tool that was left meanwhile, or done twice, is not on top any more.
            runInBackground(
                [photo = QImage(cropped)]() mutable {
                    return PhotoResize::imageForEditing(std::exchange(photo, {}));
                },
                [this, isCamera, weak](const QImage& image) {
                    const auto shown = weak.lock();
                    if (shown && isOnTop(*shown))
                        goOn(image, isCamera);
                });
        };
    // The camera goes with its picture; the library stays.
    if (isCamera)
        cropTool->didFinishCancelled = [this] { goOn({}, true); };
    else
        cropTool->popBlock = [this] { _screens.popViewController(); };
    _screens.pushViewController(cropTool);
}

void ScreenFlow::goOn(const QImage& image, bool isCamera)
{
    if (image.isNull()) {
        dismiss();
        return;
    }
    if (!_services.canEdit || _services.canEdit(image)) {
        startEditing(image, false, isCamera);
        return;
    }
    if (isCamera)
        dismiss();
    else
        _screens.popViewController();
    const auto picker = _photoPicker.lock();
    const auto home = _homeScreen.lock();
    if (PhotoLoader* shown = picker ? picker->loader() : home ? home->loader() : nullptr)
        shown->setMessage(localized("intake.error.tooLargeForGPU"));
}

void ScreenFlow::startEditing(const QImage& image, bool isResume, bool isCamera)
{
    if (const auto home = _homeScreen.lock())
        home->withdrawOffer();
    ResumeWorkHelper& resumeWork = _services.resumeWork();
    if (!isResume) {
        resumeWork.clearSavedWork();
        resumeWork.saveWorkingImage(image);
    }
    logLine("cropped image size: %d x %d", image.width(), image.height());
    const auto editor = std::make_shared<ViewController>();
    editor->setResumeWorkHelper(&resumeWork);
    editor->popBlock = [this] { _screens.popViewController(); };
    editor->removeCropScreensBlock = [this] { _screens.removeBelowTop<TOCropViewController>(); };
    editor->presentHelpBlock = [this] { presentHelp(); };
    editor->presentSaveViewBlock = [this](const std::shared_ptr<SaveViewController>& saveView) {
        presentSaveView(saveView);
    };
    editor->setImage(image);
    _screens.pushViewController(editor);
    // The save screen asks for it, and the library takes longer to load than a screen may to come.
    globalQueue(QueuePriority::Background).async([] { SaveImageFormatter::canWriteHEIF(); });
    if (isCamera) // going back from the editor leads home
        _screens.removeBelowTop<CameraPicker>();
}

void ScreenFlow::presentHelp()
{
    const auto help = std::make_shared<ZKLHelpController>(ZKLConfigManager::sharedConfigManager());
    help->dismissBlock = [this] { dismiss(); };
    _screens.presentViewController(help, ModalPresentationStyle::FormSheet);
}

void ScreenFlow::presentSaveView(const std::shared_ptr<SaveViewController>& saveView)
{
    saveView->dismissBlock = [this](std::function<void()> completion) {
        _screens.dismissViewController(std::move(completion));
    };
    saveView->delivery().chooseFolderBlock = _services.dialogs.chooseFolder;
    saveView->sharing().shareFileBlock = _services.shareFile;
    saveView->sharing().copyImageBlock = _services.copyImage;
    // A phone has its pictures in the gallery, and mostly no file manager.
    if (!_services.isPhone || !_services.isPhone())
        saveView->delivery().showFileBlock = _services.showFile;
    saveView->presentChangeColorBlock =
        [this, weak = std::weak_ptr(saveView)](std::function<void(const QColor&)> completion) {
            if (const auto screen = weak.lock())
                presentChangeColor(*screen, std::move(completion));
        };
    saveView->presentEditBackgroundBlock = [this, weak = std::weak_ptr(saveView)] {
        if (const auto screen = weak.lock())
            presentEditBackground(screen);
    };
    _settings.connectSaveView(saveView);
    _screens.presentViewController(saveView, ModalPresentationStyle::FullScreen);
}

void ScreenFlow::presentChangeColor(SaveViewController& saveView,
                                    std::function<void(const QColor&)> completion)
{
    const auto screen = std::make_shared<ChangeColorVC>();
    screen->setImage(saveView.jpgImageView()->image());
    screen->setBackgroundColor(saveView.jpgImageView()->backgroundColor());
    screen->doneBlock = std::move(completion);
    screen->dismissBlock = [this] { dismiss(); };
    _screens.presentViewController(screen, ModalPresentationStyle::FullScreen);
}

void ScreenFlow::presentEditBackground(const std::shared_ptr<SaveViewController>& saveView)
{
    const auto screen = std::make_shared<EditBackgroundVC>(
        UserDefaults::standardUserDefaults(), *saveView->progressHUD(), _services.screenBounds);
    screen->setFgImage(saveView->image(), saveView->pngImageView()->image());
    screen->saveBlock = [weak = std::weak_ptr(saveView)](PictureDelivery::Picture picture,
                                                         PictureDelivery::Encoded completion) {
        if (const auto owner = weak.lock())
            owner->delivery().saveJpgImage(std::move(picture), Qt::black, std::move(completion));
    };
    screen->dismissBlock = [this] { dismiss(); };
    letPickBackground(*screen->depthPanels());
    _screens.presentViewController(screen, ModalPresentationStyle::FullScreen);
}

void ScreenFlow::letPickBackground(DepthPanels& panels)
{
    panels.screens = &_screens;
    panels.presentPhotoPickerBlock = [this](std::function<void(const QImage&)> picked,
                                            std::function<void()> cancelled) {
        const auto picker = std::make_shared<ZKLPhotoPicker>(_services.dialogs);
        picker->selectionBlock = std::move(picked);
        picker->dismissBlock = [this, cancelled = std::move(cancelled)] {
            cancelled();
            dismiss();
        };
        _backgroundPicker = picker;
        _screens.presentViewController(picker, ModalPresentationStyle::FullScreen);
    };
    panels.photoTooLargeBlock = [this] {
        if (const auto picker = _backgroundPicker.lock())
            picker->loader()->setMessage(localized("intake.error.tooLargeForGPU"));
    };
    panels.dismissPhotoPickerBlock = [this] {
        const auto picker = _backgroundPicker.lock();
        if (picker && _screens.topScreen() == picker.get())
            dismiss();
    };
}

} // namespace pelmira
