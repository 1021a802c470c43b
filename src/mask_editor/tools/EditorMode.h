#pragma once

namespace pelmira {

/// The tools, as the editor counts them.
enum EditorMode { ModeNone = 0, ModeWand = 1, ModeErase = 2, ModeReplace = 3 };

} // namespace pelmira
