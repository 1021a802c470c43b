#include "background_editor/shadow/ShadowResolution.h"

#include <algorithm>
#include <cmath>

namespace pelmira {

double shadowReach(double deviation)
{
    return std::ceil(3.5 * deviation) + 1.0;
}

double shadowDensity(double deviation, double sharpest)
{
    constexpr double pixelsPerDeviation = 4.0; // then linear enlarging is off by half a level
    return deviation > 0.0 ? std::min(sharpest, pixelsPerDeviation / deviation) : sharpest;
}

} // namespace pelmira
