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

#include <chrono>
#include <functional>
#include <memory>

namespace pelmira {

/// Everything of the mask editor that works on pixels, put together; it needs a GL context and a
/// view to draw into, but no window and no screen.
struct MaskEditorEngine {
    /// The preferences hold the brush; both they and the view outlive this.
    MaskEditorEngine(GLView& view, std::shared_ptr<GLContext> context, UserDefaults& defaults);

    /// Makes the shaders in a later turn of the loop, since some drivers take a while; `open` does
    /// it at the latest. Needs the jobs' owner.
    void setupGLSoon();

    /// Opens the photo, as the first of the surface's jobs. What `readMask` reads on its thread, a
    /// mask of as many pixels, becomes the photo's alpha; the history stays empty.
    using MaskReader = std::function<std::shared_ptr<ZKLUndoEntry>()>;
    /// `then` is told on the main thread whether there was one.
    void open(QImage photo, MaskReader readMask = nullptr,
              std::function<void(bool isMaskRead)> then = nullptr);

    /// While the screen isn't seen, what can be had again takes no memory.
    void setSeen(bool isSeen);

    /// Called when GL has no memory to show the photo as it is.
    std::function<void()> outdatedBlock;

    EditorCanvas canvas;
    SurfaceJobs jobs{canvas};
    ShaderSet shaders;
    DestinationReader reader;
    Brush brush;
    OverlayRequests overlays;
    UndoHistory history{canvas};
    ScreenCompositor compositor{canvas, shaders, reader, brush, overlays};
    WandInteraction wand{canvas, jobs, history};
    StrokeEngine strokes{canvas, jobs, shaders, reader, brush};
    ViewNavigation navigation{canvas};
    /// Tells how old a touch is.
    std::function<std::chrono::steady_clock::time_point()> now = &std::chrono::steady_clock::now;

private:
    void setupGL();
    /// Not if the owner has gone.
    void inLaterTurn(std::function<void()> job);

    bool _isSetUp = false;
    bool _isSeen = true;
};

} // namespace pelmira
