#pragma once

#include "controls/StripButton.h"

namespace pelmira {

/// A button of the crop tool's strip: a frame of the ratio over its name.
class ConstraintButton final : public StripButton {
    Q_OBJECT
public:
    using StripButton::StripButton;

    /// In pixels of the screen.
    static constexpr int titleSize = 12;
};

} // namespace pelmira
