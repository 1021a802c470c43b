#pragma once

#include "mask_editor/tools/BrushControls.h"
#include "mask_editor/tools/BrushTool.h"
#include "mask_editor/tools/EditorMode.h"
#include "mask_editor/tools/TouchRouter.h"
#include "mask_editor/tools/WandTool.h"

namespace pelmira {

/// What the user works on the mask with, put together: the tools, what sets them, who hands them
/// touches, and the presses that change the whole mask. Main thread only.
struct EditorTools {
    /// Engine and button outlive this. `setShowTools` hides the bars while a tool is in use.
    EditorTools(MaskEditorEngine& editorEngine, InterfaceButton& brushAdjustButton,
                const std::function<void(bool)>& setShowTools);

    /// Takes the mode's tool in hand, if it has one.
    Tool* select(EditorMode mode);

    /// Both end a stroke under way and take effect when nobody works on the mask.
    void invertMask();
    void undo();

    MaskEditorEngine& engine;
    BrushControls brushControls;
    WandTool wand;
    BrushTool erase;
    BrushTool replace;
    TouchRouter router;

private:
    Tool* toolOf(EditorMode mode);
};

} // namespace pelmira
