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
    const QPointF pixel(std::min(point.x(), double(surface->width()) - 1.0),
                        std::min(point.y(), double(surface->height()) - 1.0));
    // It shares its tiles with the level that was just taken.
    const std::shared_ptr<ZKLUndoEntry> mask = _history.getUndoBuffer();
    const Start start{pixel, mask ? mask->tiles() : TiledMask()};
    const auto session = std::make_shared<std::optional<FloodFillSession>>();
    if (!startSession(session, start, start.mask, tolerance))
        return;
    _floodFillSession = session; // whose planes take the place of an earlier one's
    _start = start;
}

// Made by the job: that is a pass over all pixels.
bool WandInteraction::startSession(const Session& session, const Start& start,
                                   const TiledMask& present, unsigned tolerance)
{
    return _jobs.start(
        [session, start, present, tolerance](const PixelSpan& pixels) {
            const ChangedTiles changed = start.mask.differenceFrom(present);
            start.mask.restore(pixels, changed);
            QRegion written = changed.region();
            try {
                written += session
                               ->emplace(pixels.pixels, pixels.width, pixels.height,
                                         pixels.bytesPerRow, start.pixel)
                               .setTolerance(static_cast<std::uint8_t>(tolerance));
            } catch (const std::bad_alloc&) {
                session->reset();
                present.restore(pixels, changed);
            }
            return written;
        },
        [this, session] {
            rememberSurface();
            if (!*session)
                giveUp(session);
        });
}

void WandInteraction::giveUp(const Session& session)
{
    if (_floodFillSession == session)
        endFloodFillSession();
    if (noMemoryBlock)
        noMemoryBlock();
}

void WandInteraction::endFloodFillSession()
{
    _floodFillSession.reset();
    _start = {};
}

void WandInteraction::releaseMemory()
{
    _jobs.whenReady([this] {
        if (_floodFillSession && !_start.mask.isEmpty())
            _floodFillSession->reset();
    });
}

void WandInteraction::updateFloodFillTolerance(unsigned tolerance)
{
    const OGLESMappedTexture* surface = _canvas.readySurface();
    if (!surface || !_floodFillSession)
        return;
    if (!*_floodFillSession) {
        fillAnew(tolerance);
        return;
    }
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

void WandInteraction::fillAnew(unsigned tolerance)
{
    const std::shared_ptr<ZKLUndoEntry> present = _history.getUndoBuffer();
    if (present)
        startSession(_floodFillSession, _start, present->tiles(), tolerance);
    else
        giveUp(_floodFillSession);
}

void WandInteraction::rememberSurface()
{
    _changeCountAfterFill = _canvas.fgMappedTexture->changeCount();
}

} // namespace pelmira
