#pragma once

#include <cstdint>

namespace pelmira {

/// The brush's shape. The raw value is stored, and is the tag of the shape's button; a stored
/// value beyond these counts as a circle.
enum class BrushType : std::int32_t { circle = 0, triangle = 1, square = 2 };

} // namespace pelmira
