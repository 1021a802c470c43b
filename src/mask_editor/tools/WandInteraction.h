#pragma once

#include "mask_editor/surface/EditorCanvas.h"
#include "mask_editor/surface/SurfaceJobs.h"
#include "mask_editor/undo/UndoHistory.h"
#include "mask_editor/wand/FloodFillSession.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace pelmira {

/// The wand's fill on the surface, and the same fill again at other tolerances. Main thread only;
/// the fills run on a background queue.
class WandInteraction {
public:
    WandInteraction(EditorCanvas& canvas, SurfaceJobs& jobs, UndoHistory& history)
        : _canvas(canvas), _jobs(jobs), _history(history)
    {
    }

    /// Called when there is no memory for a fill; the mask is as it was.
    std::function<void()> noMemoryBlock;

    /// Starts a fill at a pixel counted from the photo's corner; tolerance from 0 to 255.
    void floodFillPoint(QPointF point, unsigned tolerance);
    /// Runs the last fill again in the background. Dropped, not queued, while one is running: a
    /// dial in motion keeps pace by skipping.
    void updateFloodFillTolerance(unsigned tolerance);
    void endFloodFillSession();
    /// Keeps of the last fill no more than where it starts from. The next tolerance gives the same
    /// mask as ever, and takes as long as a tap.
    void releaseMemory();

    bool hasFloodFillSession() const { return _floodFillSession != nullptr; }

private:
    using Session = std::shared_ptr<std::optional<FloodFillSession>>;
    /// All that a session can be made anew from: a photo's colours never change.
    struct Start {
        QPointF pixel;
        TiledMask mask;
    };

    /// `present` is the mask as it is, which takes its place again if there is no memory.
    bool startSession(const Session& session, const Start& start, const TiledMask& present,
                      unsigned tolerance);
    void fillAnew(unsigned tolerance);
    void giveUp(const Session& session);
    void rememberSurface();

    EditorCanvas& _canvas;
    SurfaceJobs& _jobs;
    UndoHistory& _history;
    /// Filled once the surface is ready again; empty also after its memory was released.
    Session _floodFillSession;
    Start _start;
    std::uint64_t _changeCountAfterFill = 0;
};

} // namespace pelmira
