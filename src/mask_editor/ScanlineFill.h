#pragma once

#include "platform/PixelSpan.h"

#include <QPoint>
#include <QRect>
#include <cstdint>

namespace pelmira {

/// Fills what is 4-connected to the start through pixels whose entry in `distances` (width ×
/// height bytes, rows tightly packed) is strictly below the tolerance: writes 0 into their alpha
/// byte and 255, which never passes again, into their distance. A start that doesn't pass itself
/// yields to its right neighbour. The start must lie in the image.
/// Returns the bounding box of what was filled.
QRect scanlineFill(const PixelSpan& pixels, std::uint8_t* distances, QPoint start,
                   std::uint32_t tolerance);

} // namespace pelmira
