#pragma once

#include <QImage>

namespace pelmira {

/// A picture to play with where no photo is at hand: a pear before a plain backdrop.
QImage samplePhoto();

} // namespace pelmira
