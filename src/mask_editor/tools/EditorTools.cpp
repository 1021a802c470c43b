#include "mask_editor/tools/EditorTools.h"

#include "mask_editor/drawing/MaskInverter.h"
#include "mask_editor/tools/MaskEditorEngine.h"

namespace pelmira {

EditorTools::EditorTools(MaskEditorEngine& editorEngine, InterfaceButton& brushAdjustButton,
                         const std::function<void(bool)>& setShowTools)
    : engine(editorEngine), brushControls(engine, brushAdjustButton), wand(engine, setShowTools),
      erase(true, engine, brushControls, setShowTools),
      replace(false, engine, brushControls, setShowTools), router(engine.navigation, brushControls)
{
}

Tool* EditorTools::select(EditorMode mode)
{
    Tool* tool = toolOf(mode);
    router.setTool(tool);
    if (tool)
        tool->selected();
    return tool;
}

Tool* EditorTools::toolOf(EditorMode mode)
{
    switch (mode) {
    case ModeWand:
        return &wand;
    case ModeErase:
        return &erase;
    case ModeReplace:
        return &replace;
    case ModeNone:
        break;
    }
    return nullptr;
}

void EditorTools::invertMask()
{
    router.maskWillChange();
    engine.jobs.whenReady([this] {
        engine.history.saveUndoBuffer();
        maskInvert(engine.canvas, engine.shaders, engine.reader);
    });
}

void EditorTools::undo()
{
    router.maskWillChange();
    engine.jobs.whenReady([this] { engine.history.undo(); });
}

} // namespace pelmira
