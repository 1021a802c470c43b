#pragma once

#include "mask_editor/surface/EditorCanvas.h"
#include "mask_editor/surface/SurfaceJobs.h"
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
    WandInteraction(EditorCanvas& canvas, SurfaceJobs& jobs) : _canvas(canvas), _jobs(jobs) {}

    /// Called when there is no memory for a fill; the mask is as it was.
    std::function<void()> noMemoryBlock;

    /// Starts a fill at a pixel counted from the photo's corner; tolerance from 0 to 255.
    void floodFillPoint(QPointF point, unsigned tolerance);
    /// Runs the last fill again in the background. Dropped, not queued, while one is running: a
    /// dial in motion keeps pace by skipping.
    void updateFloodFillTolerance(unsigned tolerance);
    void endFloodFillSession() { _floodFillSession.reset(); }

    bool hasFloodFillSession() const { return _floodFillSession != nullptr; }

private:
    using Session = std::shared_ptr<std::optional<FloodFillSession>>;

    void giveUp(const Session& session);
    void rememberSurface();

    EditorCanvas& _canvas;
    SurfaceJobs& _jobs;
    /// Filled once the surface is ready again.
    Session _floodFillSession;
    std::uint64_t _changeCountAfterFill = 0;
};

} // namespace pelmira
