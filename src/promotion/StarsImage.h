#pragma once

#include <QImage>
#include <QSizeF>

namespace pelmira {

/// Five grey stars, yellow from the left as far as the rating goes, from 0 to 5; a rating within a
/// point of the right edge is full. The size is in points, with `scale` pixels to each.
QImage starsImageWithSize(QSizeF size, double numStars, double scale = 1.0);

} // namespace pelmira
