#pragma once

#include <QByteArray>
#include <QImage>

namespace pelmira {

/// A JPEG of the image's colours, at a quality from 0 to 1 and with chroma at full resolution, so
/// that a coloured edge stays where it is. JPEG has no transparency: a pixel's colour is written as
/// if it were opaque. The file says that it is sRGB, and nothing else: no place, no device. Empty
/// for a null image, for one with more than 65500 pixels on a
/// side, or without memory. Safe from any thread; takes seconds for a large one.
QByteArray jpegRepresentation(const QImage& image, double compressionQuality);

} // namespace pelmira
