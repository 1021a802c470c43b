#pragma once

namespace pelmira {

/// Makes the screens, and what they show, known to the layout files. To be called before the first
/// layout is loaded.
void registerScreenTypes();

} // namespace pelmira
