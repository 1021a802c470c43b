#pragma once

#include "mask_editor/shaders/DestinationReader.h"
#include "mask_editor/shaders/ShaderSet.h"
#include "mask_editor/surface/EditorCanvas.h"

namespace pelmira {

/// Where the magnifier stands for a pointer: above it and clear of it, in a view of this width. All
/// in screen points, y down.
QRectF wandZoomBox(QPointF point, double viewWidth);

/// Draws the wand's magnifier above the finger, into the bound framebuffer of the view. At the
/// screen's top edge it is drawn partly outside rather than moved under the finger.
void renderWandZoomAtScreenPos(QPointF point, const EditorCanvas& canvas, const ShaderSet& shaders,
                               DestinationReader& reader);

} // namespace pelmira
