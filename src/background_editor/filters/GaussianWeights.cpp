#include "background_editor/filters/GaussianWeights.h"

#include <cmath>

namespace pelmira {

std::vector<double> gaussianWeights(double deviation)
{
    constexpr double deviationsToTheEnd = 4.0;
    const double end = std::ceil(deviationsToTheEnd * deviation);
    std::vector<double> weights;
    double sum = 0.0;
    for (double distance = 0.0; distance <= end; ++distance) {
        const double share = distance / deviation;
        weights.push_back(std::exp(-0.5 * share * share));
        sum += (distance > 0.0 ? 2.0 : 1.0) * weights.back();
    }
    for (double& weight : weights)
        weight /= sum;
    return weights;
}

} // namespace pelmira
