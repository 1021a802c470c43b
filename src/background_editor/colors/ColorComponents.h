#pragma once

#include <QColor>

#include <algorithm>

namespace pelmira {

/// An opaque colour; channels beyond 0 to 1, as a preference may hold them, count as the nearest.
inline QColor opaqueColor(float r, float g, float b)
{
    const auto channel = [](float value) { return std::clamp(value, 0.0F, 1.0F); };
    return QColor::fromRgbF(channel(r), channel(g), channel(b));
}

} // namespace pelmira
