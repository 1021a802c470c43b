#pragma once

#include "background_editor/patterns/PatternScene.h"

#include <vector>

namespace pelmira {

/// A pattern of the library: its lasting name, and what draws it. A scene is drawn for a canvas
/// whose longer side has 1024 units.
struct PatternMaker {
    const char* name;
    PatternScene (*make)();
};

/// Families of patterns, in the order in which they are shown.
std::vector<PatternMaker> dotPatterns();
std::vector<PatternMaker> stripePatterns();
std::vector<PatternMaker> geometricPatterns();
std::vector<PatternMaker> naturePatterns();
std::vector<PatternMaker> playfulPatterns();

} // namespace pelmira
