#pragma once

#include "mask_editor/brush/Brush.h"
#include "mask_editor/drawing/OverlayRequests.h"
#include "mask_editor/shaders/DestinationReader.h"
#include "mask_editor/shaders/ShaderSet.h"
#include "mask_editor/surface/EditorCanvas.h"
#include "mask_editor/undo/UndoHistory.h"
#include "platform/touch/Touches.h"

#include <chrono>
#include <functional>

namespace pelmira {

/// Turns a finger's path into stamps in the mask. A touch becomes a stroke once it has gone more
/// than 4 points; that is where its one undo level is taken, so a mere tap changes nothing. Stamps
/// go straight into the surface, a fifteenth of the brush's size apart.
class StrokeEngine {
public:
    StrokeEngine(EditorCanvas& canvas, ShaderSet& shaders, DestinationReader& reader, Brush& brush,
                 UndoHistory& history, OverlayRequests& overlays);

    /// `isErase` tells the two brushes apart: one lowers alpha, the other raises it.
    void handleBrushEvent(const TouchEvent& event, TouchPhase phase, bool isErase);
    /// Stamps a segment between two screen points; the brush's size, in mask pixels, sets the
    /// spacing. Needs an open photo.
    void drawLineFromPoint(QPointF from, QPointF toPoint, double brushSize, bool isErase);

    /// Ends the stroke under way; what is painted stays.
    void cancel();
    /// Ends a stroke that began less than 0.6 seconds ago and takes it back: two fingers that
    /// come down one after the other mean the view.
    void takeBackYoungStroke();

    std::function<void(bool)> setShowTools;

private:
    void drawStamps(QPointF start, QPointF step, int count, bool isErase);
    QRect surfaceRectangle(const QRectF& mask) const;

    EditorCanvas& _canvas;
    ShaderSet& _shaders;
    DestinationReader& _reader;
    Brush& _brush;
    UndoHistory& _history;
    OverlayRequests& _overlays;

    QPointF _lastBrushPos;
    QPointF _strokeStartPos;
    bool _isDrawingStarted = false;
    bool _isDrawingCancelled = true; ///< also: finished
    std::chrono::steady_clock::time_point _interactionStartTime;
};

} // namespace pelmira
