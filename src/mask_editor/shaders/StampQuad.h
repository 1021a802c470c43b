#pragma once

#include "mask_editor/shaders/ShaderProgram.h"

#include <QPointF>
#include <QRectF>

namespace pelmira {

/// The quad of a stamp of side `size` at a point, turned by minus `rotation` (y down), so that in
/// the mask it undoes the photo's turn on the screen. Its texture coordinates lie a quarter turn
/// from those with which the stamp is drawn; the brush's angle goes together with that.
///
/// `reach`, in the units of `position`, stretches the quad so that it also covers the stamp moved
/// by that much; the texture coordinates run on beyond 0 and 1.
Quad brushVerticesForPos(QPointF position, double size, double rotation, QPointF reach = {});

/// How far the texture coordinates of a stamp lie from those of one that is `step` further on.
QPointF textureStep(QPointF step, double size, double rotation);

/// The upright rectangle round a quad.
QRectF boundsOf(const Quad& quad);

} // namespace pelmira
