#pragma once

namespace pelmira {

/// How far from a shape its shadow can still be seen.
double shadowReach(double deviation);

/// Pixels to work out for each point, at most `sharpest`: a soft shadow needs few, and when they
/// are shown larger it isn't seen.
double shadowDensity(double deviation, double sharpest);

} // namespace pelmira
