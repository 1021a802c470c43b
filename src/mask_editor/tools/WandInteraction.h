#pragma once

#include "mask_editor/drawing/OverlayRequests.h"
#include "mask_editor/surface/EditorCanvas.h"
#include "mask_editor/surface/SurfaceJobs.h"
#include "mask_editor/undo/UndoHistory.h"
#include "mask_editor/wand/FloodFillSession.h"
#include "platform/touch/Touches.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace pelmira {

/// The magic wand: a finger aims under a magnifier, lifting it fills, and the dial then runs the
/// same fill again at other tolerances. Main thread only; the fills run on a background queue.
class WandInteraction {
public:
    WandInteraction(EditorCanvas& canvas, SurfaceJobs& jobs, UndoHistory& history,
                    OverlayRequests& overlays);

    void handleWandEvent(const TouchEvent& event, TouchPhase phase);
    /// Starts a fill if the screen point lies on the photo; while another runs, after it.
    void doWandAtPoint(QPointF point);
    /// Starts a fill at a pixel counted from the photo's corner; tolerance from 0 to 255.
    void floodFillPoint(QPointF point, unsigned tolerance);
    /// Runs the last fill again in the background. Dropped, not queued, while one is running: a
    /// dial in motion keeps pace by skipping.
    void updateFloodFillTolerance(unsigned tolerance);
    void endFloodFillSession() { _floodFillSession.reset(); }

    bool hasFloodFillSession() const { return _floodFillSession != nullptr; }
    static unsigned toleranceForDialValue(double value);

    /// The dial's value, or nothing while there is no dial.
    std::function<std::optional<double>()> dialValue;
    std::function<void(bool)> setShowTools;

private:
    void showMagnifier(bool isShown, bool isCancelled);

    EditorCanvas& _canvas;
    SurfaceJobs& _jobs;
    UndoHistory& _history;
    OverlayRequests& _overlays;
    std::shared_ptr<FloodFillSession> _floodFillSession;
    bool _wandCancelled = true;
    std::uint64_t _changeCountAfterFill = 0;
};

} // namespace pelmira
