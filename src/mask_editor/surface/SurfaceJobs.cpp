#include "mask_editor/surface/SurfaceJobs.h"

#include "platform/base/RunInBackground.h"

#include <utility>

namespace pelmira {
namespace {

// A job queued without any would be run in the same turn of the loop.
constexpr double secondsBetweenParts = 0.001;

} // namespace

bool SurfaceJobs::start(Work work, Job then)
{
    OGLESMappedTexture* surface = _canvas.readySurface();
    if (!surface || !surface->lockTexture())
        return false;
    surface->setReady(false);
    runInBackground(
        [pixels = surface->lockedPixels(), work = std::move(work)] { return work(pixels); },
        [this, then = std::move(then), alive = owner.lock()](const QRegion& written) {
            finish(written, then);
        },
        globalQueue(QueuePriority::Default));
    return true;
}

void SurfaceJobs::finish(const QRegion& written, const Job& then)
{
    _canvas.fgMappedTexture->pixelsChanged(written);
    handBack(then);
}

// In parts, between which the main thread serves its loop: a whole photo is too much for a finger
// to wait for.
void SurfaceJobs::handBack(const Job& then)
{
    OGLESMappedTexture& surface = *_canvas.fgMappedTexture;
    if (surface.unlockPart()) {
        mainQueue().asyncAfter(secondsBetweenParts,
                               [this, then, alive = owner.lock()] { handBack(then); });
        return;
    }
    surface.unlockTexture();
    surface.setReady(true);
    then();
    _canvas.setNeedsDisplay();
    serveWaiting();
}

void SurfaceJobs::whenReady(Job press)
{
    _waiting.push_back(std::move(press));
    serveWaiting();
}

// A press may start a job of its own; the rest then waits for that one.
void SurfaceJobs::serveWaiting()
{
    if (std::exchange(_isServing, true))
        return;
    while (!_waiting.empty() && !_canvas.isBusy()) {
        const Job press = std::move(_waiting.front());
        _waiting.pop_front();
        press();
    }
    _isServing = false;
}

} // namespace pelmira
