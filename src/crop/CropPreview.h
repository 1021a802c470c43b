#pragma once

#include <QImage>
#include <QList>

namespace pelmira {

/// The longest side of what the crop surface shows in place of an image of many pixels, in pixels:
/// any GPU takes it as a texture, and it is sharp well beyond the screen's own resolution.
inline constexpr int cropPreviewSide = 4096;

/// One small image, made at once.
QImage roughCropPreview(const QImage& image);

/// Copies of the image, each half the size of the next one; the last is the image itself unless
/// that is too large. Shown at half its size at least, a copy is as sharp as can be and doesn't
/// shimmer. Takes a part of a second for a large image. Safe from any thread.
QList<QImage> cropPreviewLevels(const QImage& image);

/// The level to show on so many pixels of the screen.
int cropPreviewLevel(const QList<QImage>& levels, double shownWidth);

} // namespace pelmira
