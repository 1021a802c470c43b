#pragma once

#include "background_editor/filters/SampleRows.h"

namespace pelmira {

/// From this deviation on a grid of every second pixel is fine enough.
constexpr double narrowestWideBlur = 5.0;

/// gaussianBlur for deviations from narrowestWideBlur on.
///
/// A wide blur leaves nothing fine, so it is made on a coarse grid: the picture is reduced with a
/// triangle two cells wide, which lets no fine texture pass for a coarse one, the small picture is
/// blurred with exact weights, and a quadratic B-spline, in which the grid can't be seen, brings it
/// back to its size. Triangle and spline are blurs themselves: the weights make what is missing.
void wideBlur(const SampleRows<const std::uint8_t>& source, const SampleRows<std::uint8_t>& target,
              double deviation, Beyond beyond);

} // namespace pelmira
