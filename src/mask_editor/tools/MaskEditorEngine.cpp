#include "mask_editor/tools/MaskEditorEngine.h"

#include "platform/base/RunLoop.h"

#include <utility>

namespace pelmira {
namespace {

constexpr double secondsToNextTurn = 0.001;

} // namespace

MaskEditorEngine::MaskEditorEngine(GLView& view, std::shared_ptr<GLContext> context,
                                   UserDefaults& defaults)
    : canvas(view, context), shaders(context), reader(context), brush(canvas, shaders, defaults)
{
    // The undone fill must not come back by a turn of the dial.
    history.willUndo = [this] { wand.endFloodFillSession(); };
    view.setContext(std::move(context));
    view.setDelegate(&compositor);
}

void MaskEditorEngine::open(QImage photo, MaskReader readMask,
                            std::function<void(bool isMaskRead)> then)
{
    setupGL();
    canvas.initialiseWithSize(photo.size());
    if (canvas.fgMappedTexture)
        canvas.fgMappedTexture->outdatedBlock = outdatedBlock;
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
        [this, isMaskRead, then = std::move(then)] {
            brush.initBrush();
            if (then)
                then(*isMaskRead);
        });
    // Mostly it is done by then, in a turn of its own while the photo is being turned.
    inLaterTurn([this] { brush.initBrush(); });
}

void MaskEditorEngine::setupGLSoon()
{
    inLaterTurn([this] { setupGL(); });
}

void MaskEditorEngine::inLaterTurn(std::function<void()> job)
{
    mainQueue().asyncAfter(secondsToNextTurn, [job = std::move(job), owner = jobs.owner] {
        if (const auto alive = owner.lock())
            job();
    });
}

void MaskEditorEngine::setSeen(bool isSeen)
{
    _isSeen = isSeen;
    if (!isSeen)
        wand.releaseMemory();
    jobs.whenReady([this] {
        OGLESMappedTexture* surface = canvas.readySurface();
        if (!surface)
            return;
        if (_isSeen) {
            if (surface->restoreTexture())
                jobs.start([](const PixelSpan&) { return QRegion(); }, [] {}); // sent as it ends
            return;
        }
        surface->releaseTexture();
        if (!surface->hasTexture())
            compositor.letGoOfTexture();
    });
}

// The results aren't looked at: a program that failed draws nothing and is in the log.
void MaskEditorEngine::setupGL()
{
    if (std::exchange(_isSetUp, true))
        return;
    canvas.context()->makeCurrent();
    glDisable(GL_DITHER); // on by default, and free to change bytes that pass through a shader
    shaders.loadFgShaders();
    shaders.loadBrushShaders();
    shaders.loadMaskInvertShader();
    shaders.loadShowBrushShader();
    shaders.loadWandZoomShader();
}

} // namespace pelmira
