#pragma once

#include "platform/screen/ScreenStack.h"

namespace pelmira {

/// Finds the screen that the user sees.
class TopVC {
public:
    /// Nothing before the first screen is shown.
    static Screen* topViewController(const ScreenStack& screens) { return screens.topScreen(); }
};

} // namespace pelmira
