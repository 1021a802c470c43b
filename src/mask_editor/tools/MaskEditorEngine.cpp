#include "mask_editor/tools/MaskEditorEngine.h"

#include <utility>

namespace pelmira {

MaskEditorEngine::MaskEditorEngine(GLView& view, std::shared_ptr<GLContext> context,
                                   UserDefaults& defaults)
    : canvas(view, context), shaders(context), reader(context), brush(canvas, shaders, defaults)
{
    // The undone fill must not come back by a turn of the dial.
    history.willUndo = [this] { wand.endFloodFillSession(); };
    setupGL();
    view.setContext(std::move(context));
    view.setDelegate(&compositor);
}

void MaskEditorEngine::open(QImage photo, MaskReader readMask,
                            std::function<void(bool isMaskRead)> then)
{
    canvas.initialiseWithSize(photo.size());
    history.clearUndo(); // levels are of one photo
    const auto isMaskRead = std::make_shared<bool>(false);
    jobs.start(
        [photo = std::move(photo), readMask = std::move(readMask),
         isMaskRead](const PixelSpan& pixels) mutable {
            // Let go of here, off the main thread, if nobody else has it.
            const QImage image = std::exchange(photo, QImage());
            OGLESMappedTexture::copyImageIntoBuffer(image, pixels);
            const auto mask = readMask ? readMask() : nullptr;
            *isMaskRead = mask && mask->restoreInto(pixels);
            return QRegion(image.rect());
        },
        [isMaskRead, then = std::move(then)] {
            if (then)
                then(*isMaskRead);
        });
}

// The results aren't looked at: a program that failed draws nothing and is in the log.
void MaskEditorEngine::setupGL()
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

} // namespace pelmira
