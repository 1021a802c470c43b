#pragma once

#include "mask_editor/shaders/DestinationReader.h"
#include "mask_editor/shaders/ShaderSet.h"
#include "mask_editor/surface/EditorCanvas.h"

namespace pelmira {

/// Swaps what is kept and what is removed: one draw over the whole surface. Colour stays, so
/// inverting twice gives the first mask back. The caller has taken the undo level.
void maskInvert(EditorCanvas& canvas, const ShaderSet& shaders, DestinationReader& reader);

} // namespace pelmira
