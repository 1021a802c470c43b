#include "shell/NewHomeScreenVC.h"

#include "crop/TOCropViewController.h"
#include "intake/LimitedModeHeaderView.h"
#include "intake/PhotoPermissionsHelper.h"
#include "intake/PhotoResize.h"
#include "platform/base/Log.h"
#include "platform/base/RunLoop.h"
#include "platform/image/Image.h"
#include "platform/pixels/ImageResize.h"
#include "platform/text/LocalizedStrings.h"

#include <QFileInfo>
#include <QPointer>

#include <utility>
#include <variant>

namespace pelmira {
namespace {

constexpr QSizeF thumbnailBounds(720, 540); // pixels, for the sharpest screens

} // namespace

NewHomeScreenVC::NewHomeScreenVC(ScreenStack& navigation, Services services)
    : _navigation(navigation), _services(std::move(services))
{
}

QUrl NewHomeScreenVC::layoutFile() const
{
    return QUrl(QStringLiteral("qrc:/qt-project.org/imports/Pelmira/Ui/HomeScreen.qml"));
}

void NewHomeScreenVC::viewDidLoad()
{
    showPermissionOverlayIfNeeded();
    LimitedModeHeaderView::setColorMode(LimitedModeHeaderView::Dark);
}

void NewHomeScreenVC::viewDidAppear(bool)
{
    if (std::exchange(_canShownResume, false))
        offerSavedWork();
}

// What is still being read was meant for this screen.
void NewHomeScreenVC::viewWillDisappear(bool)
{
    _loader.cancel();
    _waitingPhoto = {};
}

void NewHomeScreenVC::showPermissionOverlayIfNeeded()
{
    const PermissionStatus status = PhotoPermissionsHelper::authorizationStatus();
    if (status == PermissionStatus::Authorized || status == PermissionStatus::Limited)
        return;
    _permissionOverlayView =
        std::make_shared<PermissionOverlayView>(status, _services.dialogs.chooseFolder);
    _permissionOverlayView->doneBlock = [screen = QPointer(this)] {
        if (!screen)
            return;
        screen->_permissionOverlayView->setAlpha(0.0);
        mainQueue().asyncAfter(PermissionOverlayView::fadeDuration, [screen] {
            if (!screen)
                return;
            screen->_permissionOverlayView.reset();
            Q_EMIT screen->changed();
        });
    };
    Q_EMIT changed();
}

void NewHomeScreenVC::offerSavedWork()
{
    ResumeWorkHelper& resumeWork = _services.resumeWork();
    if (resumeWork.isHeldElsewhere())
        _loader.setMessage(localized(QStringLiteral("homescreen.error.workIsElsewhere")));
    const QImage thumbnail = resumeWork.hasSavedWork() ? resumeWork.savedWorkThumbnail() : QImage();
    if (thumbnail.isNull()) {
        resumeWork.clearSavedWork();
        cropWaitingPhoto();
        return;
    }
    const auto offer =
        std::make_shared<ResumeView>(resizedImageWithContentMode(thumbnail, thumbnailBounds));
    offer->yesBlock = [this] {
        setResumeView(nullptr);
        const QImage image = _services.resumeWork().savedWorkImage();
        if (image.isNull())
            cropWaitingPhoto();
        else
            startEditing(image, true, false);
    };
    // The work is kept: the offer comes again at the next launch, unless a new photo replaces it.
    offer->noBlock = [this] {
        setResumeView(nullptr);
        cropWaitingPhoto();
    };
    setResumeView(offer);
}

void NewHomeScreenVC::setResumeView(std::shared_ptr<ResumeView> resumeView)
{
    // The old one may be the very button press that takes it away: it stays until the next turn.
    mainQueue().async([old = std::exchange(_resumeView, std::move(resumeView))] {});
    Q_EMIT changed();
}

void NewHomeScreenVC::photoButtonTapped()
{
    _isCameraMode = false;
    const auto picker = std::make_shared<ZKLPhotoPicker>(_services.dialogs);
    picker->dismissBlock = [this] { _navigation.dismissViewController({}); };
    picker->selectionBlock = [this, shown = picker.get()](const QImage& photo) {
        if (_navigation.topScreen() == shown)
            crop(photo, false);
    };
    _photoPicker = picker;
    _navigation.presentViewController(picker, ModalPresentationStyle::FullScreen);
}

void NewHomeScreenVC::cameraButtonTapped()
{
    CameraPermissionsHelper::ensureCameraAccess(
        _alert, _services.cameraStatus,
        [screen = QPointer(this)] {
            if (screen && screen->_navigation.topScreen() == screen)
                screen->presentCamera();
        },
        _services.openSettings);
}

void NewHomeScreenVC::presentCamera()
{
    _isCameraMode = true;
    const auto camera = std::make_shared<CameraPicker>(_services.makeCamera);
    camera->requestAccessBlock = _services.requestCameraAccess;
    camera->didFinishPickingMedia = [this, shown = camera.get()](const QImage& photo) {
        if (_navigation.topScreen() != shown)
            return;
        if (photo.isNull())
            _navigation.dismissViewController({});
        else
            crop(photo, true);
    };
    camera->didCancel = [this] { _navigation.dismissViewController({}); };
    _navigation.presentViewController(camera, ModalPresentationStyle::FullScreen);
}

void NewHomeScreenVC::browseButtonTapped()
{
    _services.dialogs.chooseImage([screen = QPointer(this)](const QString& path) {
        if (screen)
            screen->openPhoto(path);
    });
}

void NewHomeScreenVC::openUrl(const QUrl& url)
{
    if (url.isLocalFile())
        openPhoto(url.toLocalFile());
}

void NewHomeScreenVC::openPhoto(const QString& path)
{
    if (!isOnTop())
        return;
    _isCameraMode = false;
    _waitingPhoto = {};
    _loader.loadFile(path, [this](const QImage& photo) { photoArrived(photo); });
}

void NewHomeScreenVC::openPhotos(const QStringList& paths)
{
    if (paths.isEmpty())
        return;
    openPhoto(paths.first());
    if (paths.size() > 1)
        _loader.setMessage(localized(QStringLiteral("homescreen.oneAtATime"))
                               .arg(QFileInfo(paths.first()).fileName()));
}

// The user may have turned to something else while it was read, and an offer comes first: Done in
// the crop tool replaces the work that is offered.
void NewHomeScreenVC::photoArrived(const QImage& photo)
{
    if (!isOnTop())
        return;
    if (_canShownResume || _resumeView)
        _waitingPhoto = photo;
    else
        crop(photo, false);
}

void NewHomeScreenVC::cropWaitingPhoto()
{
    if (const QImage photo = std::exchange(_waitingPhoto, QImage()); !photo.isNull())
        photoArrived(photo);
}

void NewHomeScreenVC::paste()
{
    if (!isOnTop())
        return;
    _isCameraMode = false;
    const OfferedImage offered =
        _services.clipboardImage ? _services.clipboardImage() : OfferedImage();
    if (const auto* path = std::get_if<QString>(&offered))
        openPhoto(*path);
    else if (const auto* bytes = std::get_if<QByteArray>(&offered))
        _loader.loadData(*bytes, localized(QStringLiteral("homescreen.pasted")),
                         [this](const QImage& photo) { photoArrived(photo); });
    else if (const auto* pixels = std::get_if<QImage>(&offered))
        photoArrived(makeBitmapForm(*pixels));
    else
        _loader.setMessage(localized(QStringLiteral("homescreen.nothingToPaste")));
}

void NewHomeScreenVC::crop(const QImage& photo, bool isCamera)
{
    const auto cropTool = TOCropViewController::initWithImage(photo);
    if (!cropTool)
        return;
    cropTool->didCropToImage = [this, isCamera, shown = cropTool.get()](const QImage& cropped,
                                                                        const QRect&) {
        if (!cropped.isNull() && _navigation.topScreen() == shown)
            goOn(PhotoResize::imageForEditing(cropped), isCamera);
    };
    // The camera goes with its picture; the library stays.
    if (isCamera)
        cropTool->didFinishCancelled = [this] { goOn({}, true); };
    else
        cropTool->popBlock = [this] { _navigation.popViewController(); };
    _navigation.pushViewController(cropTool);
}

void NewHomeScreenVC::goOn(const QImage& image, bool isCamera)
{
    if (image.isNull()) {
        _navigation.dismissViewController({});
        return;
    }
    if (!_services.canEdit || _services.canEdit(image)) {
        startEditing(image, false, isCamera);
        return;
    }
    if (isCamera)
        _navigation.dismissViewController({});
    else
        _navigation.popViewController();
    const auto picker = _photoPicker.lock();
    PhotoLoader& shown = picker ? *picker->loader() : _loader;
    shown.setMessage(localized(QStringLiteral("intake.error.tooLargeForGPU")));
}

void NewHomeScreenVC::startEditing(const QImage& image, bool isResume, bool isCamera)
{
    if (_resumeView)
        setResumeView(nullptr);
    if (!isResume) {
        _services.resumeWork().clearSavedWork();
        _services.resumeWork().saveWorkingImage(image);
    }
    logLine("cropped image size: %d x %d", image.width(), image.height());
    const auto editor = std::make_shared<ViewController>();
    editor->setResumeWorkHelper(&_services.resumeWork());
    editor->popBlock = [this] { _navigation.popViewController(); };
    editor->removeCropScreensBlock = [this] { _navigation.removeBelowTop<TOCropViewController>(); };
    if (_services.prepareEditor)
        _services.prepareEditor(*editor);
    editor->setImage(image);
    _navigation.pushViewController(editor);
    if (isCamera) // going back from the editor leads home
        _navigation.removeBelowTop<CameraPicker>();
}

} // namespace pelmira
