#pragma once

#include "background_editor/canvas/AspectRatio.h"

#include <QImage>

namespace pelmira {

constexpr double ratioIconSide = 44.0; ///< points

/// The ratio's frame, with its pictogram if it has one, in white on a clear square.
QImage makeRatioIcon(AspectRatio ratio, QSizeF screenBounds);

} // namespace pelmira
