#pragma once

#include "mask_editor/brush/Brush.h"
#include "mask_editor/shaders/DestinationReader.h"
#include "mask_editor/shaders/ShaderSet.h"
#include "mask_editor/surface/EditorCanvas.h"

namespace pelmira {

/// Draws the brush's outline round a screen point at its size on the screen, unturned. While the
/// brush is being adjusted and works above the finger, a marker shows where the finger would be.
void renderBrushToScreenAtPos(QPointF position, bool isAdjustingBrush, const EditorCanvas& canvas,
                              const Brush& brush, const ShaderSet& shaders,
                              DestinationReader& reader);

} // namespace pelmira
