#pragma once

#include "controls/Alert.h"
#include "controls/InterfaceButton.h"
#include "intake/PermissionOverlayView.h"
#include "intake/PhotoLoader.h"
#include "platform/screen/Screen.h"
#include "shell/AppServices.h"
#include "shell/HomeScreenDelegate.h"
#include "shell/ResumeView.h"

#include <QImage>
#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <memory>

namespace pelmira {

/// The first screen: takes photos from wherever they come, and offers once, when it first appears,
/// to go on with unfinished work. Its delegate knows what follows.
class NewHomeScreenVC final : public Screen {
    Q_OBJECT
    Q_PROPERTY(pelmira::PhotoLoader* loader READ loader CONSTANT)
    Q_PROPERTY(pelmira::Alert* alert READ alert CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* settingsButton READ settingsButton CONSTANT)
    Q_PROPERTY(pelmira::PermissionOverlayView* permissionOverlayView READ permissionOverlayView
                   NOTIFY changed)
    Q_PROPERTY(pelmira::ResumeView* resumeView READ resumeView NOTIFY changed)

public:
    /// The delegate outlives the screen.
    NewHomeScreenVC(HomeScreenDelegate& delegate, AppServices services);

    Q_INVOKABLE void photoButtonTapped();
    Q_INVOKABLE void cameraButtonTapped();
    Q_INVOKABLE void settingsButtonTapped();
    /// The system's file dialog.
    Q_INVOKABLE void browseButtonTapped();
    /// Dropped files.
    Q_INVOKABLE void openUrls(const QList<QUrl>& urls);
    /// What other programs have put on the clipboard.
    Q_INVOKABLE void paste();
    void openPhoto(const QString& path) { openPhotos({path}); }
    /// The first of them; that the others stay closed is told.
    void openPhotos(const QStringList& paths);
    /// The work that may be offered is about to be gone on with, or replaced.
    void withdrawOffer();

    QUrl layoutFile() const override;
    void viewDidLoad() override;
    void viewDidAppear(bool animated) override;
    void viewWillDisappear(bool animated) override;

    PhotoLoader* loader() { return &_loader; }
    Alert* alert() { return &_alert; }
    InterfaceButton* settingsButton()
    {
        return _delegate.canShowSettings() ? &_settingsButton : nullptr;
    }
    PermissionOverlayView* permissionOverlayView() const { return _permissionOverlayView.get(); }
    ResumeView* resumeView() const { return _resumeView.get(); }
    bool isCameraMode() const { return _isCameraMode; }
    /// The saved work's photo is being read; its editor comes next.
    bool isGoingOn() const { return _isGoingOn; }

Q_SIGNALS:
    void changed();

private:
    void showPermissionOverlayIfNeeded();
    void offerSavedWork();
    void giveUpSavedWork();
    void goOnWithSavedWork();
    void setResumeView(std::shared_ptr<ResumeView> resumeView);
    bool isOnTop() const { return _delegate.isOnTop(*this); }
    /// Not while saved work is opened: a photo in its place would replace it in the end.
    bool takesPhotos() const { return isOnTop() && !_isGoingOn; }
    void photoArrived(const QImage& photo);
    void cropWaitingPhoto();

    HomeScreenDelegate& _delegate;
    const AppServices _services;
    PhotoLoader _loader;
    Alert _alert;
    InterfaceButton _settingsButton;
    std::shared_ptr<PermissionOverlayView> _permissionOverlayView;
    std::shared_ptr<ResumeView> _resumeView;
    QImage _waitingPhoto; ///< until the offer is answered
    bool _isCameraMode = false;
    bool _canShownResume = true;
    bool _isGoingOn = false;
};

} // namespace pelmira
