#pragma once

#include "mask_editor/DestinationReader.h"
#include "mask_editor/EditorCanvas.h"
#include "mask_editor/ShaderSet.h"

namespace pelmira {

/// Swaps what is kept and what is removed: one draw over the whole surface. Colour stays, so
/// inverting twice gives the first mask back. The caller has taken the undo level.
void maskInvert(EditorCanvas& canvas, const ShaderSet& shaders, DestinationReader& reader);

} // namespace pelmira
