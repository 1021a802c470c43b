#pragma once

#include "controls/Alert.h"
#include "intake/CameraPermissionsHelper.h"
#include "intake/CameraPicker.h"
#include "intake/FileDialogs.h"
#include "intake/PermissionOverlayView.h"
#include "intake/PhotoLoader.h"
#include "intake/ZKLPhotoPicker.h"
#include "mask_editor/screen/ViewController.h"
#include "persistence/resume/ResumeWorkHelper.h"
#include "platform/portal/Clipboard.h"
#include "platform/screen/Screen.h"
#include "platform/screen/ScreenStack.h"
#include "shell/ResumeView.h"

#include <QImage>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <memory>

namespace pelmira {

/// The first screen: leads from a photo, wherever it comes from, through the crop tool to the
/// editor, and offers once, when it first appears, to go on with unfinished work.
class NewHomeScreenVC final : public Screen {
    Q_OBJECT
    Q_PROPERTY(pelmira::PhotoLoader* loader READ loader CONSTANT)
    Q_PROPERTY(pelmira::Alert* alert READ alert CONSTANT)
    Q_PROPERTY(pelmira::PermissionOverlayView* permissionOverlayView READ permissionOverlayView
                   NOTIFY changed)
    Q_PROPERTY(pelmira::ResumeView* resumeView READ resumeView NOTIFY changed)

public:
    struct Services {
        /// The saved work, made at the first use.
        std::function<ResumeWorkHelper&()> resumeWork;
        FileDialogs dialogs;
        CameraPicker::CameraMaker makeCamera;
        CameraPermissionsHelper::StatusReader cameraStatus;
        /// Asks the user for the camera, where that is usual.
        std::function<void(std::function<void(bool)>)> requestCameraAccess;
        std::function<void()> openSettings;
        std::function<OfferedImage()> clipboardImage;
        /// False for a photo that the GPU can't hold.
        std::function<bool(const QImage&)> canEdit;
        /// Connects a new editor with what isn't this screen's business.
        std::function<void(ViewController&)> prepareEditor;
    };

    /// The stack holds this screen, and outlives it.
    NewHomeScreenVC(ScreenStack& navigation, Services services);

    Q_INVOKABLE void photoButtonTapped();
    Q_INVOKABLE void cameraButtonTapped();
    /// The system's file dialog.
    Q_INVOKABLE void browseButtonTapped();
    /// A dropped file.
    Q_INVOKABLE void openUrl(const QUrl& url);
    /// What other programs have put on the clipboard.
    Q_INVOKABLE void paste();
    void openPhoto(const QString& path);
    /// The first of them; that the others stay closed is told.
    void openPhotos(const QStringList& paths);

    QUrl layoutFile() const override;
    void viewDidLoad() override;
    void viewDidAppear(bool animated) override;
    void viewWillDisappear(bool animated) override;

    PhotoLoader* loader() { return &_loader; }
    Alert* alert() { return &_alert; }
    PermissionOverlayView* permissionOverlayView() const { return _permissionOverlayView.get(); }
    ResumeView* resumeView() const { return _resumeView.get(); }
    bool isCameraMode() const { return _isCameraMode; }

Q_SIGNALS:
    void changed();

private:
    void showPermissionOverlayIfNeeded();
    void offerSavedWork();
    void setResumeView(std::shared_ptr<ResumeView> resumeView);
    void presentCamera();
    bool isOnTop() const { return _navigation.topScreen() == this; }
    void photoArrived(const QImage& photo);
    void cropWaitingPhoto();
    void crop(const QImage& photo, bool isCamera);
    void goOn(const QImage& image, bool isCamera);
    /// Opens the editor on a photo of working size. A new photo replaces the saved work.
    void startEditing(const QImage& image, bool isResume, bool isCamera);

    ScreenStack& _navigation;
    const Services _services;
    PhotoLoader _loader;
    Alert _alert;
    std::shared_ptr<PermissionOverlayView> _permissionOverlayView;
    std::shared_ptr<ResumeView> _resumeView;
    std::weak_ptr<ZKLPhotoPicker> _photoPicker;
    QImage _waitingPhoto; ///< until the offer is answered
    bool _isCameraMode = false;
    bool _canShownResume = true;
};

} // namespace pelmira
