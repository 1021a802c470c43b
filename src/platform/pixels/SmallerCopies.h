#pragma once

#include "platform/pixels/PixelSpan.h"

#include <QImage>

#include <vector>

namespace pelmira {

/// Brings the source to half its width and height, rounded down and at least 1, which is the
/// result's size: each pixel becomes the mean of the area that it stands for, rounded to nearest.
/// All four bytes are treated alike, so premultiplied colour stays within its alpha.
/// False without memory for a row.
bool halve(const PixelSpan& source, const PixelSpan& result);

/// The image at half its size, a quarter and so on, down to one pixel: the levels that GL wants
/// below a texture's first, in the same format, which is one of 32 bits a pixel. Nothing of a null
/// image or without memory. Safe from any thread.
std::vector<QImage> smallerCopies(const QImage& image);

} // namespace pelmira
