#pragma once

#include <QColor>
#include <QImage>

namespace pelmira {

/// How much of each pixel something covers: images of the format QImage::Format_Alpha8. Each result
/// is null without memory. Safe from any thread.

/// Nothing is covered beyond the edges; the deviation is in pixels.
QImage blurredCoverage(const QImage& coverage, double deviation);

/// The coverage in one colour, in the bitmap form.
QImage tinted(const QImage& coverage, const QColor& color);

} // namespace pelmira
