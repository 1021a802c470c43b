#pragma once

#include "mask_editor/surface/EditorCanvas.h"
#include "mask_editor/undo/ZKLUndoEntry.h"

#include <deque>
#include <functional>
#include <memory>

namespace pelmira {

/// The levels that undo can go back to: snapshots of the mask, each taken just before a change,
/// the newest first. There is no redo. Snapshot and undo cost what has changed, not what the photo
/// measures: all snapshots share the tiles that they have in common. Main thread only.
class UndoHistory {
public:
    explicit UndoHistory(EditorCanvas& canvas) : _canvas(canvas) {}

    void clearUndo();
    /// Takes a snapshot and makes it the newest level, dropping the oldest beyond the depth that
    /// the device's memory allows. A busy surface gives no level: false, and the change goes ahead.
    bool saveUndoBuffer();
    /// The mask as it is, or nothing while the surface is missing or busy.
    std::shared_ptr<ZKLUndoEntry> getUndoBuffer();
    /// Puts the newest level back and throws it away.
    void undo();

    std::size_t levels() const { return _undoBuffer.size(); }

    /// Called at the start of an undo: what would bring the undone change back must go.
    std::function<void()> willUndo;
    /// Called when the history may have become empty or ceased to be.
    std::function<void(bool hasLevels)> availabilityChanged;

    /// Levels kept on a device of so many megabytes.
    static std::size_t maxLevels(int deviceRamMB);

private:
    void announce() const;
    void restore(const TiledMask& mask, OGLESMappedTexture& surface);

    EditorCanvas& _canvas;
    std::deque<std::shared_ptr<ZKLUndoEntry>> _undoBuffer;
    TiledMask _last; ///< the mask when the surface's changes were last taken note of
};

} // namespace pelmira
