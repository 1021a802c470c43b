#pragma once

#include "background_editor/filters/SampleRows.h"

namespace pelmira {

/// gaussianBlur for small deviations (above 0): weighs every pixel in reach, in 16-bit whole
/// numbers.
void narrowBlur(const SampleRows<const std::uint8_t>& source,
                const SampleRows<std::uint8_t>& target, double deviation, Beyond beyond);

} // namespace pelmira
