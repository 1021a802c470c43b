#pragma once

#include "controls/Alert.h"
#include "intake/PermissionStatus.h"
#include "platform/portal/CameraPortal.h"

#include <QString>

#include <functional>

namespace pelmira {

/// Access to the cameras.
class CameraPermissionsHelper {
public:
    using StatusReader = std::function<PermissionStatus()>;

    /// Goes on, on the main queue, unless the cameras are denied: then the alert of the screen says
    /// so and offers to open the settings. A status that isn't determined goes on too: whoever
    /// opens the camera will be asked, or told that there is none.
    static void ensureCameraAccess(Alert& alert, const StatusReader& authorizationStatus,
                                   std::function<void()> callback,
                                   std::function<void()> openSettings);

    /// In a sandbox what the portal says, if there is one; else by the devices.
    static PermissionStatus cameraStatus(const CameraPortal& portal);

    /// By the video devices "video0", "video1", ... of a folder: authorised if any can be opened to
    /// read and write, denied if there are some and none can, not determined without any.
    static PermissionStatus statusOfDevices(const QString& folder = QStringLiteral("/dev"));
};

} // namespace pelmira
