#pragma once

#include <QImage>

namespace pelmira {

/// A picture to play with where no photo is at hand: a pear before a plain backdrop, whose colours
/// change with the number.
QImage samplePhoto(int number);

} // namespace pelmira
