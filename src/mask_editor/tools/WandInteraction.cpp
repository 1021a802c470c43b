#include "mask_editor/tools/WandInteraction.h"

#include <algorithm>
#include <new>

namespace pelmira {

void WandInteraction::floodFillPoint(QPointF point, unsigned tolerance)
{
    const OGLESMappedTexture* surface = _canvas.readySurface();
    if (!surface)
        return;
    // The session rounds to the nearest pixel, so the outer half of the last one would fall out.
    const QPointF start(std::min(point.x(), double(surface->width()) - 1.0),
                        std::min(point.y(), double(surface->height()) - 1.0));
    // Made by the job: that is a pass over all pixels.
    const auto session = std::make_shared<std::optional<FloodFillSession>>();
    if (_jobs.start(
            [session, start, tolerance](const PixelSpan& pixels) -> QRegion {
                try {
                    return session
                        ->emplace(pixels.pixels, pixels.width, pixels.height, pixels.bytesPerRow,
                                  start)
                        .setTolerance(static_cast<std::uint8_t>(tolerance));
                } catch (const std::bad_alloc&) {
                    session->reset();
                    return {};
                }
            },
            [this, session] {
                rememberSurface();
                if (!*session)
                    giveUp(session);
            }))
        _floodFillSession = session; // whose planes take the place of an earlier one's
}

void WandInteraction::giveUp(const Session& session)
{
    if (_floodFillSession == session)
        _floodFillSession.reset();
    if (noMemoryBlock)
        noMemoryBlock();
}

void WandInteraction::updateFloodFillTolerance(unsigned tolerance)
{
    const OGLESMappedTexture* surface = _canvas.readySurface();
    if (!surface || !_floodFillSession)
        return;
    // Whatever else has changed the mask since the last fill is lost to this one; the session
    // only has to know that it happened.
    if (surface->changeCount() != _changeCountAfterFill)
        (*_floodFillSession)->alphaChangedElsewhere();
    _jobs.start(
        [session = _floodFillSession, tolerance](const PixelSpan& pixels) {
            return (*session)->setTolerance(static_cast<std::uint8_t>(tolerance), pixels.pixels,
                                            pixels.bytesPerRow);
        },
        [this] { rememberSurface(); });
}

void WandInteraction::rememberSurface()
{
    _changeCountAfterFill = _canvas.fgMappedTexture->changeCount();
}

} // namespace pelmira
