#pragma once

#include <QByteArray>
#include <QImage>

namespace pelmira {

/// A PNG of the pixels with their transparency, marked as sRGB, and nothing else: no place, no
/// device, and no colour where nothing is seen. Empty for a null image or without memory. Safe from
/// any thread; takes tenths of a second for a large image, on all cores.
QByteArray pngRepresentation(const QImage& image);

} // namespace pelmira
