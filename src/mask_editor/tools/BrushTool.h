#pragma once

#include "mask_editor/tools/Tool.h"

#include <chrono>
#include <functional>

namespace pelmira {

class BrushControls;
struct MaskEditorEngine;

/// A brush that erases, or one that brings back: it turns a finger's path into a stroke. A touch
/// becomes one when it has gone more than 4 points; that is where its one undo level is taken, so
/// a mere tap changes nothing. Both brushes share their size and its dial.
class BrushTool final : public Tool {
public:
    /// Engine and controls outlive the tool.
    BrushTool(bool isErase, MaskEditorEngine& engine, BrushControls& controls,
              std::function<void(bool)> setShowTools);

    ZKLScrollDial& dial() override;

    void handleEvent(const TouchEvent& event, TouchPhase phase) override
    {
        handleBrushEvent(event, phase);
    }
    void handleBrushEvent(const TouchEvent& event, TouchPhase phase);
    /// Ends a stroke that began less than 0.6 seconds ago and takes it back: two fingers that come
    /// down one after the other mean the view.
    void yieldToView() override;
    /// Ends the stroke; it would go on over another mask than it began on, and its level would no
    /// longer be the newest.
    bool yieldToChange() override;
    /// Ends the stroke.
    void viewWillTransitionToSize() override { end(); }

    bool paints() const override { return true; }
    void showCursorAt(std::optional<QPointF> finger) override;

private:
    using TimePoint = std::chrono::steady_clock::time_point;

    void press(QPointF position);
    void drag(QPointF position);
    void lift(QPointF position);
    void end();
    QPointF brushPosition(QPointF finger) const;
    void drawLineTo(QPointF position);

    const bool _isErase;
    MaskEditorEngine& _engine;
    BrushControls& _controls;
    std::function<void(bool)> _setShowTools;

    QPointF _lastBrushPos;
    QPointF _strokeStartPos;
    bool _isDrawingStarted = false;
    bool _isDrawingCancelled = true; ///< also: finished
    bool _hasLevel = false;          ///< of undo, taken at the stroke's beginning
    TimePoint _interactionStartTime;
};

} // namespace pelmira
