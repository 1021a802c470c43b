#pragma once

#include "platform/pixels/PixelSpan.h"

namespace pelmira {

/// A length of the source, in its pixels, that fills a length of the target, in its pixels. They
/// may begin and end between pixels; a mirrored length runs the other way.
struct ResampledAxis {
    double targetStart;
    double targetLength;
    double sourceStart;
    double sourceLength;
    bool isMirrored = false;
};

/// Fills the target with the source, stretched as the axes say: premultiplied values, by the cubic
/// of Keys ("Cubic Convolution Interpolation for Digital Image Processing", 1981, a = -1/2), which
/// is widened where the source is made smaller, so that nothing flickers. What lies beyond the
/// source is clear, so an edge that falls between pixels is soft; with `coversTarget` it is the
/// source's edge instead. False without memory.
bool resample(const PixelSpan& source, const PixelSpan& target, const ResampledAxis& x,
              const ResampledAxis& y, bool coversTarget);

/// From target pixels to source pixels, both measured from the corner: source = a * x + b * y + c.
struct PixelMapping {
    double ax, bx, cx;
    double ay, by, cy;
};

/// Fills the target with the source seen through the mapping, by the same cubic, for mappings that
/// turn and shift without making the source much smaller. Beyond the source it is clear.
void resampleTurned(const PixelSpan& source, const PixelSpan& target, const PixelMapping& mapping);

} // namespace pelmira
