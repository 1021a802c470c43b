#include "shell/NewHomeScreenVC.h"

#include "intake/LimitedModeHeaderView.h"
#include "intake/PhotoPermissionsHelper.h"
#include "persistence/resume/ResumeWorkHelper.h"
#include "platform/base/RunLoop.h"
#include "platform/screen/LayoutUrl.h"
#include "platform/text/LocalizedStrings.h"

#include <QPointer>

#include <utility>
#include <variant>

namespace pelmira {
namespace {

constexpr QSizeF thumbnailBounds(720, 540); // pixels, for the sharpest screens

} // namespace

NewHomeScreenVC::NewHomeScreenVC(HomeScreenDelegate& delegate, AppServices services)
    : _delegate(delegate), _services(std::move(services))
{
}

QUrl NewHomeScreenVC::layoutFile() const
{
    return layoutUrl("HomeScreen");
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
    _isGoingOn = false;
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
        _loader.setMessage(localized("homescreen.error.workIsElsewhere"));
    if (!resumeWork.hasSavedWork()) {
        giveUpSavedWork();
        return;
    }
    // The question comes at once, before anything is begun, and its picture when it is read.
    const auto offer = std::make_shared<ResumeView>();
    resumeWork.savedWorkThumbnail(thumbnailBounds,
                                  [screen = QPointer(this), offer](const QImage& thumbnail) {
                                      if (!screen || screen->_resumeView != offer)
                                          return; // answered, or withdrawn
                                      if (!thumbnail.isNull()) {
                                          offer->setImage(thumbnail);
                                          return;
                                      }
                                      screen->setResumeView(nullptr);
                                      screen->giveUpSavedWork();
                                  });
    offer->yesBlock = [this] { goOnWithSavedWork(); };
    // The work is kept: the offer comes again at the next launch, unless a new photo replaces it.
    offer->noBlock = [this] {
        setResumeView(nullptr);
        cropWaitingPhoto();
    };
    setResumeView(offer);
}

void NewHomeScreenVC::giveUpSavedWork()
{
    ResumeWorkHelper& resumeWork = _services.resumeWork();
    if (resumeWork.lacksMemory())
        _loader.setMessage(localized("homescreen.error.workMemory"));
    else
        resumeWork.clearSavedWork();
    cropWaitingPhoto();
}

void NewHomeScreenVC::goOnWithSavedWork()
{
    setResumeView(nullptr);
    _isGoingOn = true;
    _loader.load(_services.resumeWork().imageReader(), {}, [this](const QImage& image) {
        _isGoingOn = false;
        if (!image.isNull()) {
            _delegate.goOnWithSavedWork(image);
            return;
        }
        if (_services.resumeWork().lacksMemory())
            _loader.setMessage(localized("homescreen.error.workMemory"));
        cropWaitingPhoto();
    });
}

void NewHomeScreenVC::withdrawOffer()
{
    if (_resumeView)
        setResumeView(nullptr);
}

void NewHomeScreenVC::setResumeView(std::shared_ptr<ResumeView> resumeView)
{
    // The old one may be the very button press that takes it away: it stays until the next turn.
    mainQueue().async([old = std::exchange(_resumeView, std::move(resumeView))] {});
    Q_EMIT changed();
}

void NewHomeScreenVC::photoButtonTapped()
{
    if (!takesPhotos())
        return;
    _isCameraMode = false;
    _delegate.showLibrary();
}

void NewHomeScreenVC::settingsButtonTapped()
{
    if (!_isGoingOn && _delegate.canShowSettings())
        _delegate.showSettings();
}

void NewHomeScreenVC::cameraButtonTapped()
{
    CameraPermissionsHelper::ensureCameraAccess(
        _alert, _services.cameraStatus,
        [screen = QPointer(this)] {
            if (!screen || !screen->takesPhotos())
                return;
            screen->_isCameraMode = true;
            screen->_delegate.showCamera();
        },
        [screen = QPointer(this)] {
            if (screen && !(screen->_services.openSettings && screen->_services.openSettings()))
                screen->_alert.showMessageInTurn(localized("settings.error.open"));
        });
}

void NewHomeScreenVC::browseButtonTapped()
{
    _services.dialogs.chooseImage([screen = QPointer(this)](const QString& path) {
        if (screen)
            screen->openPhotos({path});
    });
}

void NewHomeScreenVC::openUrls(const QList<QUrl>& urls)
{
    if (takesPhotos())
        openPhotos(_loader.localFiles(urls));
}

void NewHomeScreenVC::openPhotos(const QStringList& paths)
{
    if (paths.isEmpty() || !takesPhotos())
        return;
    _isCameraMode = false;
    _waitingPhoto = {};
    _loader.loadFirst(paths, [this](const QImage& photo) { photoArrived(photo); });
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
        _delegate.cropPhoto(photo);
}

void NewHomeScreenVC::cropWaitingPhoto()
{
    if (const QImage photo = std::exchange(_waitingPhoto, QImage()); !photo.isNull())
        photoArrived(photo);
}

void NewHomeScreenVC::paste()
{
    if (!takesPhotos())
        return;
    _isCameraMode = false;
    const OfferedImage offered =
        _services.clipboardImage ? _services.clipboardImage() : OfferedImage();
    if (const auto* path = std::get_if<QString>(&offered))
        openPhoto(*path);
    else if (const auto* bytes = std::get_if<QByteArray>(&offered))
        _loader.loadData(*bytes, localized("homescreen.pasted"),
                         [this](const QImage& photo) { photoArrived(photo); });
    else if (const auto* pixels = std::get_if<QImage>(&offered))
        _loader.loadPixels(*pixels, localized("homescreen.pasted"),
                           [this](const QImage& photo) { photoArrived(photo); });
    else
        _loader.setMessage(localized("homescreen.nothingToPaste"));
}

} // namespace pelmira
