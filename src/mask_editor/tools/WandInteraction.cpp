#include "mask_editor/tools/WandInteraction.h"

#include <QRectF>

#include <algorithm>

namespace pelmira {
namespace {

constexpr unsigned toleranceWithoutDial = 32;

} // namespace

WandInteraction::WandInteraction(EditorCanvas& canvas, SurfaceJobs& jobs, UndoHistory& history,
                                 OverlayRequests& overlays)
    : _canvas(canvas), _jobs(jobs), _history(history), _overlays(overlays)
{
}

unsigned WandInteraction::toleranceForDialValue(double value)
{
    // A dial's value comes from where its strip stands: 0.2 may come back a hair's breadth short.
    constexpr double rounding = 1e-6;
    return static_cast<unsigned>(std::clamp(value, 0.0, 1.0) * 255.0 + rounding);
}

void WandInteraction::handleWandEvent(const TouchEvent& event, TouchPhase phase)
{
    if (!_canvas.isOpen())
        return;
    _overlays.brushPosition = event.anyTouch().location;
    switch (phase) {
    case TouchBegan:
        // A second finger means the view, not the wand.
        showMagnifier(event.isSingle(), !event.isSingle());
        setShowTools(!event.isSingle());
        break;
    case TouchMoved:
        if (!_wandCancelled)
            _overlays.drawWandZoom = true;
        break;
    case TouchEnded:
        if (!_wandCancelled) {
            // One level here and one more in doWandAtPoint, with the same contents: a tap beside
            // the photo leaves one level, a tap on it two.
            _jobs.whenReady([this] { _history.saveUndoBuffer(); });
            doWandAtPoint(_overlays.brushPosition);
            showMagnifier(false, true);
            setShowTools(true);
        }
        break;
    case TouchCancelled:
        showMagnifier(false, true);
        setShowTools(true);
        break;
    }
    _canvas.setNeedsDisplay();
}

void WandInteraction::showMagnifier(bool isShown, bool isCancelled)
{
    _overlays.drawWandZoom = isShown;
    _wandCancelled = isCancelled;
}

void WandInteraction::doWandAtPoint(QPointF point)
{
    const QPointF m = _canvas.maskPosWithLowerLeftZeroOriginForScreenPos(point);
    const QSizeF size = _canvas.fgImage.imageRes;
    if (!(m.x() >= 0 && m.y() >= 0 && m.x() < size.width() && m.y() < size.height()))
        return;
    _jobs.whenReady([this, m] {
        _history.saveUndoBuffer();
        const std::optional<double> value = dialValue ? dialValue() : std::nullopt;
        floodFillPoint(m, value ? toleranceForDialValue(*value) : toleranceWithoutDial);
    });
}

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
    _changeCountAfterFill = surface->changeCount(); // so far the session knows what is there
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
        [this, surface] { _changeCountAfterFill = surface->changeCount(); });
}

} // namespace pelmira
