#include "mask_editor/undo/UndoHistory.h"

#include "mask_editor/limits/PlatformUtils.h"
#include "platform/base/Log.h"
#include "platform/base/MallocBlock.h"
#include "platform/pixels/AlphaPlane.h"

#include <cstdint>
#include <cstdlib>
#include <utility>

namespace pelmira {

std::size_t UndoHistory::maxLevels(int deviceRamMB)
{
    return deviceRamMB < 1536 ? 20 : 30;
}

void UndoHistory::clearUndo()
{
    _undoBuffer.clear();
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
    std::shared_ptr<ZKLUndoEntry> entry;
    const std::size_t length = std::size_t(surface->width()) * surface->height();
    MallocBlock plane(static_cast<std::uint8_t*>(std::malloc(length)));
    if (plane && surface->lockTexture()) {
        copyAlphaPlane(surface->lockedPixels(), plane.get());
        surface->unlockTexture();
        entry = ZKLUndoEntry::initWithBuffer(std::move(plane), static_cast<std::int32_t>(length));
    }
    surface->setReady(true);
    return entry;
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
    // A saved mask may stem from a photo of another size: then there is nothing to put back.
    std::int32_t length = 0;
    const std::uint8_t* plane = entry->originalDataWithLengthPtr(&length);
    if (plane && std::size_t(length) == std::size_t(surface->width()) * surface->height())
        surface->changePixels([&](const PixelSpan& pixels) {
            restoreAlphaPlane(pixels, plane);
            return QRegion(surface->bounds());
        });
    surface->unlockTexture();
    surface->setReady(true);
    _canvas.setNeedsDisplay();
    announce();
}

void UndoHistory::addLevel(std::shared_ptr<ZKLUndoEntry> entry)
{
    _undoBuffer.push_back(std::move(entry));
    announce();
}

void UndoHistory::announce() const
{
    if (availabilityChanged)
        availabilityChanged(!_undoBuffer.empty());
}

} // namespace pelmira
