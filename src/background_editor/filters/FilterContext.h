#pragma once

#include <QImage>

namespace pelmira {

/// Renders the two stages of a filter chain. Called on one thread at a time. Replaced in tests.
class FilterContext {
public:
    FilterContext() = default;
    FilterContext(const FilterContext&) = delete;
    FilterContext& operator=(const FilterContext&) = delete;
    virtual ~FilterContext() = default;

    /// Tiled if it wraps, clamped if not; blurred; cut to its place. Null if there is no memory.
    virtual QImage blurredImage(const QImage& image, double inputRadius, bool isWrapped);
    /// Another exposure, then another hue. A value of 0 leaves its filter out.
    virtual QImage adjustedImage(const QImage& image, double inputEV, double inputAngle);
};

} // namespace pelmira
