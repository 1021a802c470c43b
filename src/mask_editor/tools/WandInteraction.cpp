#include "mask_editor/tools/WandInteraction.h"

#include <algorithm>

namespace pelmira {

void WandInteraction::floodFillPoint(QPointF point, unsigned tolerance)
{
    OGLESMappedTexture* surface = _canvas.readySurface();
    if (!surface || !surface->lockTexture())
        return;
    surface->setReady(false);
    // The session rounds to the nearest pixel, so the outer half of the last one would fall out.
    const QPointF start(std::min(point.x(), double(surface->width()) - 1.0),
                        std::min(point.y(), double(surface->height()) - 1.0));
    const PixelSpan pixels = surface->lockedPixels();
    _floodFillSession = std::make_shared<FloodFillSession>(
        pixels.pixels, pixels.width, pixels.height, pixels.bytesPerRow, start);
    rememberSurface(); // so far the session knows what is there
    surface->unlockTexture();
    surface->setReady(true);
    updateFloodFillTolerance(tolerance);
    _canvas.setNeedsDisplay();
}

void WandInteraction::updateFloodFillTolerance(unsigned tolerance)
{
    const OGLESMappedTexture* surface = _canvas.readySurface();
    if (!surface || !_floodFillSession)
        return;
    // Whatever else has changed the mask since the last fill is lost to this one; the session
    // only has to know that it happened.
    if (surface->changeCount() != _changeCountAfterFill)
        _floodFillSession->alphaChangedElsewhere();
    _jobs.start(
        [session = _floodFillSession, tolerance](const PixelSpan& pixels) {
            return session->setTolerance(static_cast<std::uint8_t>(tolerance), pixels.pixels,
                                         pixels.bytesPerRow);
        },
        [this] { rememberSurface(); });
}

void WandInteraction::rememberSurface()
{
    _changeCountAfterFill = _canvas.fgMappedTexture->changeCount();
}

} // namespace pelmira
