#pragma once

namespace pelmira {

/// What shows through where the photo is removed.
enum BackgroundMode { BackgroundChecker = 0, BackgroundBlack = 1, BackgroundWhite = 2 };

} // namespace pelmira
