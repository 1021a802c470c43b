#pragma once

#include <QImage>
#include <QSizeF>

namespace pelmira {

/// The image at the largest size of its aspect ratio, in whole pixels and at least 1 by 1, that
/// fits into the bounds; made smaller or larger. It is made smaller by averaging, of premultiplied
/// values in the bitmap form, so that nothing flickers and nothing transparent bleeds. Null for a
/// null image or without memory.
QImage resizedImageWithContentMode(const QImage& image, QSizeF bounds);

} // namespace pelmira
