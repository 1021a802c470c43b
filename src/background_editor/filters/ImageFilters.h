#pragma once

#include "background_editor/filters/SampleRows.h"

#include <QImage>

namespace pelmira {

/// Filters of images in the bitmap form. Each gives a new image of the same size, or the same image
/// if it changes nothing; null for a null image or without memory. Safe from any thread.

/// CIGaussianBlur over an image that CIAffineTile or CIAffineClamp, with the identity transform,
/// has made endless (Beyond::Tiles, Beyond::EdgePixels), cut to the image's own place. The radius
/// is the standard deviation in pixels.
QImage gaussianBlurred(const QImage& image, double inputRadius, Beyond beyond);

/// CIExposureAdjust: light times 2 to the power of `inputEV`, in linear light (sRGB, IEC
/// 61966-2-1). What gets brighter than white is white.
QImage exposureAdjusted(const QImage& image, double inputEV);

/// CIHueAdjust: turns the hue by `inputAngle` radians about the axis of greys and keeps the luma,
/// as the hueRotate matrix of W3C's Filter Effects does.
QImage hueAdjusted(const QImage& image, double inputAngle);

} // namespace pelmira
