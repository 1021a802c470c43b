#pragma once

#include "EdgeScenes.h"

namespace pelmira::bench {

/// Cuts the photograph's subject out as a patient user does with the wand: taps in the middle of
/// the largest piece of background that is left, turns the dial to where most background and least
/// subject goes, and stops when there is no more to gain. The photo with its mask as alpha.
QImage cutWithWand(const Photograph& photograph);

/// For each pixel the distance to the nearest one that isn't set, in steps over the
/// 8-neighbourhood, up to `most`.
std::vector<int> depthWithin(const std::vector<bool>& set, int width, int height, int most);

} // namespace pelmira::bench
