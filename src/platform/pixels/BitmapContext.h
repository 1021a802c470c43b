#pragma once

#include "platform/pixels/PixelSpan.h"

#include <QImage>
#include <QSizeF>
#include <QtGlobal>

namespace pelmira {

/// The one bitmap form of the application: 8 bits a component, in memory B, G, R, A, colour
/// premultiplied (QImage::Format_ARGB32_Premultiplied on a little-endian machine).

/// An image on the given memory, which stays the caller's and must outlive it, or on its own
/// cleared memory if none is given. The size is truncated to whole pixels; `bitmapBytesPerRow` 0
/// means width × 4. A null image, after a line to standard error, if it can't be made.
QImage createBGRABitmapContextWithSize(QSizeF size, void* data = nullptr,
                                       qsizetype bitmapBytesPerRow = 0);

/// The pixels of an image of 32 bits a pixel; it gets its own, if it shared them.
PixelSpan imageSpan(QImage& image);

} // namespace pelmira
