#pragma once

#include "mask_editor/undo/ZKLUndoEntry.h"

#include <functional>
#include <memory>

namespace pelmira {

/// Brings masks to disk off the main thread, one at a time: one that still waits gives way to a
/// newer one. Everything is called on the main thread.
class MaskWriter {
public:
    using Entry = std::shared_ptr<const ZKLUndoEntry>;

    /// `write` packs and writes one mask. It runs on the user-initiated queue or within `finish`.
    explicit MaskWriter(std::function<void(const ZKLUndoEntry&)> write);
    ~MaskWriter();
    MaskWriter(const MaskWriter&) = delete;
    MaskWriter& operator=(const MaskWriter&) = delete;

    /// The entry is nobody else's from now on.
    void schedule(Entry entry);
    /// Drops what waits, and returns once nothing is being written any more.
    void cancel();
    /// Returns once everything scheduled is written.
    void finish();
    bool isPending() const;

private:
    struct State;
    std::shared_ptr<State> _state;
};

} // namespace pelmira
