#pragma once

namespace pelmira {

/// Whether the user lets us at the photos or at the camera.
enum class PermissionStatus : int {
    NotDetermined = 0, ///< nobody has been asked yet
    Restricted = 1,    ///< and the user can't change that here
    Denied = 2,
    Authorized = 3,
    Limited = 4, ///< some of it; counts as access
};

} // namespace pelmira
