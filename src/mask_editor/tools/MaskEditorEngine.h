#pragma once

#include "mask_editor/brush/Brush.h"
#include "mask_editor/drawing/OverlayRequests.h"
#include "mask_editor/drawing/ScreenCompositor.h"
#include "mask_editor/shaders/DestinationReader.h"
#include "mask_editor/shaders/ShaderSet.h"
#include "mask_editor/surface/EditorCanvas.h"
#include "mask_editor/surface/SurfaceJobs.h"
#include "mask_editor/tools/StrokeEngine.h"
#include "mask_editor/tools/ViewNavigation.h"
#include "mask_editor/tools/WandInteraction.h"
#include "mask_editor/undo/UndoHistory.h"

#include <memory>
#include <utility>

namespace pelmira {

/// Everything of the mask editor that works on pixels, put together; it needs a GL context and a
/// view to draw into, but no window and no screen.
struct MaskEditorEngine {
    /// The preferences hold the brush; both they and the view outlive this.
    MaskEditorEngine(GLView& view, std::shared_ptr<GLContext> context, UserDefaults& defaults)
        : canvas(view, context), shaders(context), reader(context), brush(canvas, shaders, defaults)
    {
        setupGL();
        view.setContext(std::move(context));
        view.setDelegate(&compositor);
    }

    EditorCanvas canvas;
    SurfaceJobs jobs{canvas};
    ShaderSet shaders;
    DestinationReader reader;
    Brush brush;
    OverlayRequests overlays;
    UndoHistory history{canvas};
    ScreenCompositor compositor{canvas, shaders, reader, brush, overlays};
    WandInteraction wand{canvas, jobs, history, overlays};
    StrokeEngine strokes{canvas, jobs, shaders, reader, brush, history, overlays};
    ViewNavigation navigation{canvas};

private:
    // The results aren't looked at: a program that failed draws nothing and is in the log.
    void setupGL()
    {
        canvas.context()->makeCurrent();
        glDisable(GL_DITHER); // on by default, and free to change bytes that pass through a shader
        shaders.loadFgShaders();
        shaders.loadBrushShaders();
        shaders.loadMaskInvertShader();
        shaders.loadShowBrushShader();
        shaders.loadWandZoomShader();
        brush.initBrush();
        brush.updateBrush();
    }
};

} // namespace pelmira
