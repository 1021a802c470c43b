#pragma once

#include "platform/pixels/PixelSpan.h"

namespace pelmira {

/// Conversions between straight and premultiplied colour, 8 bits a component, on B, G, R, A.
/// Rounding is to nearest: premultiplied = (c × a + 127) / 255, straight = min(255,
/// (c × 255 + a / 2) / a), in whole numbers. The alpha byte is never changed.

/// Straight colour from premultiplied, in place. A pixel with alpha 0 gets colour 0, since what it
/// once was is not known.
void unpremultiply(const PixelSpan& pixels);

/// Premultiplied colour from straight. `source` and `destination` have the same width and height;
/// they may be the same memory or must not overlap.
void premultiply(const PixelSpan& source, const PixelSpan& destination);

} // namespace pelmira
