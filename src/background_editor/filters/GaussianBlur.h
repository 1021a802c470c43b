#pragma once

#include "background_editor/filters/SampleRows.h"

#include <cstdint>

namespace pelmira {

/// Pixels; a wider blur is made as this one.
constexpr double greatestDeviation = 1000.0;

/// Blurs with the normal distribution of the given standard deviation in pixels, cut off at four
/// deviations. Within two levels of the exact sum, and most often within one. A deviation of 0,
/// less or not a number copies. Both have the same size and number of channels and don't overlap.
/// Of premultiplied colour no component gets larger than its alpha. Throws std::bad_alloc. Safe
/// from any thread; its time falls with the deviation from 5 on.
void gaussianBlur(const SampleRows<const std::uint8_t>& source,
                  const SampleRows<std::uint8_t>& target, double deviation, Beyond beyond);

} // namespace pelmira
