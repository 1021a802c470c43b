#pragma once

#include <vector>

namespace pelmira {

/// The normal distribution at whole distances, as far as four deviations: for the middle first,
/// then for one step to either side, and so on. With both sides they add up to one.
std::vector<double> gaussianWeights(double deviation);

} // namespace pelmira
