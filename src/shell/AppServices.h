#pragma once

#include "export/ShareResult.h"
#include "intake/CameraPermissionsHelper.h"
#include "intake/CameraPicker.h"
#include "intake/FileDialogs.h"
#include "platform/portal/Clipboard.h"
#include "platform/portal/MailComposer.h"

#include <QByteArray>
#include <QImage>
#include <QSizeF>
#include <QString>
#include <QUrl>

#include <functional>

namespace pelmira {

class ResumeWorkHelper;

/// What the screens need of the system and of the process, so that tests can put something else in
/// its place. What is empty isn't there.
struct AppServices {
    /// The saved work, made at the first use.
    std::function<ResumeWorkHelper&()> resumeWork;
    FileDialogs dialogs;
    CameraPicker::CameraMaker makeCamera;
    CameraPermissionsHelper::StatusReader cameraStatus;
    /// Asks the user for the camera, where that is usual.
    std::function<void(std::function<void(bool)>)> requestCameraAccess;
    /// The system's page of what the application may do; false where there is none.
    std::function<bool()> openSettings;
    std::function<OfferedImage()> clipboardImage;
    std::function<void(const QByteArray& png)> copyImage;
    /// Hands a file to an application that the user chooses.
    std::function<void(const QString& path, std::function<void(ShareResult)> completion)> shareFile;
    /// Shows a file among its neighbours.
    std::function<void(const QString& path)> showFile;
    /// Shows a page of the net in the user's browser.
    std::function<void(const QUrl& page, std::function<void(bool wasPresented)> completion)>
        openPage;
    std::function<bool()> canSendMail;
    std::function<void(const Mail& mail, std::function<void(bool wasPresented)> completion)>
        composeMail;
    std::function<void(const QString&)> copyText;
    std::function<bool()> isPhone;
    /// Of the screen on which the window stands, in points.
    std::function<QSizeF()> screenBounds;
    /// False for a photo that the GPU can't hold.
    std::function<bool(const QImage&)> canEdit;
};

} // namespace pelmira
