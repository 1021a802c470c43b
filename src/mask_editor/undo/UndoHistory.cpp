#include "mask_editor/undo/UndoHistory.h"

#include "mask_editor/limits/PlatformUtils.h"
#include "platform/base/Log.h"

#include <cstdint>
#include <optional>
#include <utility>

namespace pelmira {

std::size_t UndoHistory::maxLevels(int deviceRamMB)
{
    return deviceRamMB < 1536 ? 20 : 30;
}

void UndoHistory::clearUndo()
{
    _undoBuffer.clear();
    _last = TiledMask();
    announce();
}

bool UndoHistory::saveUndoBuffer()
{
    std::shared_ptr<ZKLUndoEntry> entry = getUndoBuffer();
    if (!entry)
        return false;
    if (_undoBuffer.size() >= maxLevels(PlatformUtils::deviceRamMB()))
        _undoBuffer.pop_back();
    _undoBuffer.push_front(entry);
    entry->compress();
    announce();
    logLine("undo saved. %zu levels", _undoBuffer.size());
    return true;
}

std::shared_ptr<ZKLUndoEntry> UndoHistory::getUndoBuffer()
{
    OGLESMappedTexture* surface = _canvas.readySurface();
    if (!surface) {
        logLine("Unable to save undo");
        return nullptr;
    }
    surface->setReady(false);
    std::optional<TiledMask> mask;
    if (surface->lockTexture()) {
        mask = TiledMask::of(surface->lockedPixels(), _last, surface->takeChanges());
        surface->unlockTexture();
    }
    // Without a mask nothing is known of what it was: the next one is copied whole.
    _last = mask.value_or(TiledMask());
    surface->setReady(true);
    return mask ? ZKLUndoEntry::initWithTiles(*std::move(mask)) : nullptr;
}

void UndoHistory::undo()
{
    logLine("undo called. %zu levels", _undoBuffer.size());
    if (_undoBuffer.empty())
        return;
    if (willUndo)
        willUndo();
    OGLESMappedTexture* surface = _canvas.readySurface();
    if (!surface || !surface->lockTexture()) {
        logLine("Unable to undo");
        return;
    }
    surface->setReady(false);
    const std::shared_ptr<ZKLUndoEntry> entry = std::move(_undoBuffer.front());
    _undoBuffer.pop_front();
    entry->cancelCompression();
    restore(entry->tiles(), *surface);
    surface->unlockTexture();
    surface->setReady(true);
    _canvas.setNeedsDisplay();
    announce();
}

void UndoHistory::restore(const TiledMask& mask, OGLESMappedTexture& surface)
{
    ChangedTiles changed = mask.differenceFrom(_last);
    changed.mark(surface.takeChanges());
    surface.changePixels([&](const PixelSpan& pixels) {
        mask.restore(pixels, changed);
        return changed.region();
    });
    (void)surface.takeChanges();
    _last = mask;
}

void UndoHistory::announce() const
{
    if (availabilityChanged)
        availabilityChanged(!_undoBuffer.empty());
}

} // namespace pelmira
