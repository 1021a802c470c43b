#pragma once

#include "mask_editor/brush/Brush.h"
#include "mask_editor/drawing/OverlayRequests.h"
#include "mask_editor/shaders/DestinationReader.h"
#include "mask_editor/shaders/ShaderSet.h"
#include "mask_editor/surface/EditorCanvas.h"
#include "mask_editor/surface/SurfaceJobs.h"
#include "mask_editor/undo/UndoHistory.h"
#include "platform/touch/Touches.h"

#include <chrono>
#include <functional>
#include <optional>

namespace pelmira {

/// Turns a finger's path into stamps in the mask. A touch becomes a stroke once it has gone more
/// than 4 points; that is where its one undo level is taken, so a mere tap changes nothing. Stamps
/// go straight into the surface, a fifteenth of the brush's size apart.
class StrokeEngine {
public:
    using Clock = std::chrono::steady_clock;

    StrokeEngine(EditorCanvas& canvas, SurfaceJobs& jobs, ShaderSet& shaders,
                 DestinationReader& reader, Brush& brush, UndoHistory& history,
                 OverlayRequests& overlays);

    /// `isErase` tells the two brushes apart: one lowers alpha, the other raises it.
    void handleBrushEvent(const TouchEvent& event, TouchPhase phase, bool isErase);
    /// Stamps a segment between two screen points; the brush's size, in mask pixels, sets the
    /// spacing. Needs an open photo. While a job has the surface, the segment waits for it.
    void drawLineFromPoint(QPointF from, QPointF toPoint, double brushSize, bool isErase);

    /// Shows where a finger would paint, or no more.
    void showBrushAt(std::optional<QPointF> finger);

    /// Ends the stroke under way; what is painted stays.
    void cancel();
    /// The same, and the tools come back.
    void end();
    /// Ends a stroke that began less than 0.6 seconds ago and takes it back: two fingers that
    /// come down one after the other mean the view.
    void takeBackYoungStroke();

    std::function<void(bool)> setShowTools;
    /// Tells how old a stroke is.
    std::function<Clock::time_point()> now = &Clock::now;

private:
    /// A row of stamps, in mask pixels, as the view and the brush were when the finger was there.
    struct Segment {
        QPointF start;
        QPointF step;
        int count = 0;
        double size = 0.0;
        double rotation = 0.0;
        bool isErase = false;
    };

    void draw(const Segment& segment);
    void drawStamps(const Segment& segment, const ShaderProgram& program);
    QRect surfaceRectangle(const QRectF& mask) const;

    EditorCanvas& _canvas;
    SurfaceJobs& _jobs;
    ShaderSet& _shaders;
    DestinationReader& _reader;
    Brush& _brush;
    UndoHistory& _history;
    OverlayRequests& _overlays;

    QPointF _lastBrushPos;
    QPointF _strokeStartPos;
    bool _isDrawingStarted = false;
    bool _isDrawingCancelled = true; ///< also: finished
    bool _hasLevel = false;          ///< of undo, taken at the stroke's beginning
    Clock::time_point _interactionStartTime;
};

} // namespace pelmira
