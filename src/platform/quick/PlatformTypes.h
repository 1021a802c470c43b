#pragma once

namespace pelmira {

/// Makes the platform's items known to the layout files, as `import Pelmira 1.0`.
/// Call once, before the first layout file is loaded.
void registerPlatformTypes();

} // namespace pelmira
