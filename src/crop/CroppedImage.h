#pragma once

#include <QImage>
#include <QRect>

namespace pelmira {

/// The part of an image inside the frame, given in the image's own pixels, with its scale and
/// colour space; upright, as every image in memory is. Opaque if the image has no transparency;
/// clear where the frame reaches beyond it. Null for an empty frame or without memory.
QImage croppedImageWithFrame(const QImage& image, const QRect& frame);

} // namespace pelmira
