#pragma once

#include "refine/Float4.h"

#include <array>
#include <cstddef>

namespace pelmira {

/// What is known of a pixel of the band.
enum EdgeMeasure : std::size_t {
    MeasurePlace,        // on the line between the sides' colours, -0.3 to 1.3; 1 is the kept side
    MeasureDistance,     // of the two sides; this and the next four are rough logarithms of 1 + x,
    MeasureFromErased,   // where x is a squared distance in standard deviations
    MeasureFromKept,     //
    MeasureFromLine,     //
    MeasureKeptShare,    // of the weights of both sides, 0 to 1
    MeasureKeptVariance, // sum of the three components', logarithm of 1 + x as well
    MeasureErasedVariance, //
    MeasureWeight,         // of both sides, 0 to 1: less where the boundary is ragged
    EdgeMeasures
};

/// Of four pixels.
using FourMeasures = std::array<Float4, EdgeMeasures>;

/// The alpha that a pixel with these measures is likely to have, 0 to 1: what pixels like it had in
/// many true cut-outs that were photographed and cut by a wand. Depths as in BandPixel.
Float4 likelyAlpha(const FourMeasures& measures, const std::array<int, 4>& depths);

} // namespace pelmira
