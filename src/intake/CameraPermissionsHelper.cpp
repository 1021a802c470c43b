#include "intake/CameraPermissionsHelper.h"

#include "platform/base/Log.h"
#include "platform/base/RunLoop.h"
#include "platform/portal/SessionBus.h"
#include "platform/text/LocalizedStrings.h"

#include <QDir>
#include <QFile>
#include <QPointer>

#include <algorithm>
#include <unistd.h>
#include <utility>

namespace pelmira {

void CameraPermissionsHelper::ensureCameraAccess(Alert& alert,
                                                 const StatusReader& authorizationStatus,
                                                 std::function<void()> callback,
                                                 std::function<void()> openSettings)
{
    switch (authorizationStatus()) {
    case PermissionStatus::Restricted:
    case PermissionStatus::Denied:
        mainQueue().async(
            [screen = QPointer<Alert>(&alert), openSettings = std::move(openSettings)] {
                if (screen)
                    screen->show({{},
                                  localized("generic.access.camera"),
                                  localized("generic.no"),
                                  localized("generic.access.settings")},
                                 openSettings);
            });
        return;
    case PermissionStatus::NotDetermined:
    case PermissionStatus::Authorized:
        mainQueue().async(std::move(callback));
        return;
    case PermissionStatus::Limited:
        break;
    }
    logLine("%s", "");
}

PermissionStatus CameraPermissionsHelper::cameraStatus(const CameraPortal& portal)
{
    if (isInSandbox()) {
        switch (portal.access()) {
        case CameraPortal::Access::NotAsked:
            return PermissionStatus::NotDetermined;
        case CameraPortal::Access::Denied:
            return PermissionStatus::Denied;
        case CameraPortal::Access::Granted:
            return PermissionStatus::Authorized;
        case CameraPortal::Access::Unavailable:
            break;
        }
    }
    return statusOfDevices();
}

PermissionStatus CameraPermissionsHelper::statusOfDevices(const QString& folder)
{
    const QDir devices(folder);
    const QStringList names =
        devices.entryList({QStringLiteral("video[0-9]*")}, QDir::System | QDir::Files);
    if (names.isEmpty())
        return PermissionStatus::NotDetermined;
    const bool canOpenAny = std::any_of(names.begin(), names.end(), [&](const QString& name) {
        return ::access(QFile::encodeName(devices.filePath(name)).constData(), R_OK | W_OK) == 0;
    });
    return canOpenAny ? PermissionStatus::Authorized : PermissionStatus::Denied;
}

} // namespace pelmira
