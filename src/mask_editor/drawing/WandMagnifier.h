#pragma once

#include "mask_editor/shaders/DestinationReader.h"
#include "mask_editor/shaders/ShaderSet.h"
#include "mask_editor/surface/EditorCanvas.h"

namespace pelmira {

/// Draws the wand's magnifier above the finger, into the bound framebuffer of the view. At the
/// screen's top edge it is drawn partly outside rather than moved under the finger.
void renderWandZoomAtScreenPos(QPointF point, const EditorCanvas& canvas, const ShaderSet& shaders,
                               DestinationReader& reader);

} // namespace pelmira
