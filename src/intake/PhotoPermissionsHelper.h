#pragma once

#include "controls/Alert.h"
#include "intake/PermissionStatus.h"

#include <QString>

#include <functional>

namespace pelmira {

/// Access to the folder of the user's pictures. There is no service to ask: the folder's own
/// permissions tell, and a sandbox shows itself by them.
///   can be read and written      authorised
///   can be read only             limited
///   isn't there yet              not determined; asking makes it
///   can't be read, or is no folder   denied
class PhotoPermissionsHelper {
public:
    /// The folder that the user chose, while it can be read, else the system's for pictures.
    static QString photosFolder();
    static void setPhotosFolder(const QString& folder);

    static bool isAuthorised(const QString& folder = photosFolder());
    static PermissionStatus authorizationStatus(const QString& folder = photosFolder());

    /// Makes the folder if need be, away from the main thread: it may lie on a sleeping disk.
    /// Reports the status on the main queue.
    static void requestPhotosAccessWithCompletion(std::function<void(PermissionStatus)> completion,
                                                  const QString& folder = photosFolder());

    /// Goes on, on the main queue, if pictures can be added. If not, the alert of the screen says
    /// so and offers to open the settings.
    static void ensurePhotoWriteAccessPostiOS14WithVc(Alert& alert, std::function<void()> onSuccess,
                                                      std::function<void()> openSettings,
                                                      const QString& folder = photosFolder());
};

} // namespace pelmira
