#include "crop/CropMotion.h"

#include <algorithm>
#include <cmath>

namespace pelmira {
namespace {

constexpr double stiffness = 10.0 / cropSpringSeconds;
constexpr double rubber = 0.55;
const double friction = -1000.0 * std::log(0.998); // a second
constexpr double restingSpeed = 12.0;              // points a second

} // namespace

double springProgress(double seconds, double initialVelocity)
{
    if (seconds <= 0.0)
        return 0.0;
    if (seconds >= cropSpringSeconds)
        return 1.0;
    const double past =
        (1.0 + (stiffness - initialVelocity) * seconds) * std::exp(-stiffness * seconds);
    return std::clamp(1.0 - past, 0.0, 1.0);
}

double rubberBand(double overshoot, double dimension)
{
    if (dimension <= 0.0)
        return 0.0;
    const double pull = std::abs(overshoot);
    return std::copysign((1.0 - 1.0 / (pull * rubber / dimension + 1.0)) * dimension, overshoot);
}

double rubberBandPull(double shown, double dimension)
{
    if (dimension <= 0.0)
        return 0.0;
    const double part = std::min(std::abs(shown) / dimension, 0.99);
    return std::copysign((1.0 / (1.0 - part) - 1.0) * dimension / rubber, shown);
}

double Glide::end() const
{
    const double free = startsOutside() ? from : from + velocity / friction;
    return std::max(low, std::min(high, free));
}

double Glide::arrival() const
{
    const double free = from + velocity / friction;
    if (startsOutside() || (free >= low && free <= high))
        return -1.0;
    return -std::log(1.0 - (end() - from) * friction / velocity) / friction;
}

double Glide::position(double seconds) const
{
    const double target = end();
    if (startsOutside()) {
        // A throw back inside is left to the spring; one further out carries on.
        const double outward = (from < low) == (velocity < 0.0) ? velocity : 0.0;
        const double away = from - target;
        if (seconds >= cropSpringSeconds)
            return target;
        return target +
               (away + (outward + stiffness * away) * seconds) * std::exp(-stiffness * seconds);
    }
    const double arrives = arrival();
    if (arrives < 0.0 || seconds < arrives) {
        const double time = std::min(seconds, duration());
        return from + velocity / friction * (1.0 - std::exp(-friction * time));
    }
    const double since = seconds - arrives;
    if (since >= cropSpringSeconds)
        return target;
    const double speed = velocity * std::exp(-friction * arrives);
    return target + speed * since * std::exp(-stiffness * since);
}

double Glide::duration() const
{
    if (startsOutside())
        return cropSpringSeconds;
    const double arrives = arrival();
    if (arrives >= 0.0)
        return arrives + cropSpringSeconds;
    const double speed = std::abs(velocity);
    return speed > restingSpeed ? std::log(speed / restingSpeed) / friction : 0.0;
}

} // namespace pelmira
