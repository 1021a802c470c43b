#pragma once

namespace pelmira {

/// How long a move of the crop box or the image takes that nobody's finger leads, in seconds.
inline constexpr double cropSpringSeconds = 0.5;

/// How far a critically damped spring has come, from 0 to 1, which it reaches at
/// `cropSpringSeconds` and never passes: 1 - (1 + (w - v) t) e^(-w t) with w = 10 / 0.5 s. The
/// initial velocity v is in whole ways a second.
double springProgress(double seconds, double initialVelocity);

/// Where something is shown that was pulled past its end: (1 - 1 / (c x / d + 1)) d with c = 0.55.
/// It starts at 0.55 of the pull and never reaches d, the size of the view. Odd in the overshoot.
double rubberBand(double overshoot, double dimension);
/// The pull that shows the given overshoot.
double rubberBandPull(double shown, double dimension);

/// One axis of an image that was let go: it slides on and slows down by the factor 0.998 a
/// millisecond; at an end it runs over and comes back as a critically damped spring.
struct Glide {
    double from = 0.0;
    double velocity = 0.0; ///< points a second
    double low = 0.0;
    double high = 0.0;

    double position(double seconds) const;
    /// When it stands still for all the eye can tell.
    double duration() const;

private:
    double end() const;
    bool startsOutside() const { return from < low || from > high; }
    /// Of arriving at an end; negative if it stops before.
    double arrival() const;
};

} // namespace pelmira
