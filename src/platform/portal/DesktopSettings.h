#pragma once

namespace pelmira {

/// Opens the page of the desktop's settings on which a program's permissions stand; false where the
/// desktop has none that is known.
bool openAppPermissionSettings();

} // namespace pelmira
