#include "mask_editor/tools/BrushTool.h"

#include "mask_editor/tools/BrushControls.h"
#include "mask_editor/tools/MaskEditorEngine.h"

#include <QLineF>

#include <utility>

namespace pelmira {
namespace {

constexpr double strokeThreshold = 4.0; // points
constexpr auto youngStroke = std::chrono::milliseconds(600);

} // namespace

BrushTool::BrushTool(bool isErase, MaskEditorEngine& engine, BrushControls& controls,
                     std::function<void(bool)> setShowTools)
    : _isErase(isErase), _engine(engine), _controls(controls),
      _setShowTools(std::move(setShowTools))
{
}

ZKLScrollDial& BrushTool::dial()
{
    return _controls.brushSizeScrollDial();
}

void BrushTool::handleBrushEvent(const TouchEvent& event, TouchPhase phase)
{
    if (!_engine.canvas.isOpen())
        return;
    const QPointF position = brushPosition(event.anyTouch().location);
    _engine.overlays.brushPosition = position;
    switch (phase) {
    case TouchBegan:
        if (event.isSingle())
            press(position);
        else
            end();
        break;
    case TouchMoved:
        if (!_isDrawingCancelled)
            drag(position);
        break;
    case TouchEnded:
    case TouchCancelled:
        if (!_isDrawingCancelled)
            lift(position);
        break;
    }
}

void BrushTool::press(QPointF position)
{
    _lastBrushPos = _strokeStartPos = position;
    _isDrawingStarted = false;
    _isDrawingCancelled = false;
    _interactionStartTime = _engine.now();
    _engine.overlays.drawBrush = true;
    _engine.canvas.setNeedsDisplay();
}

void BrushTool::drag(QPointF position)
{
    if (!_isDrawingStarted && QLineF(_strokeStartPos, position).length() > strokeThreshold) {
        _isDrawingStarted = true;
        _setShowTools(false);
        _engine.jobs.whenReady([this] { _hasLevel = _engine.history.saveUndoBuffer(); });
    }
    _engine.overlays.drawBrush = true;
    if (_isDrawingStarted)
        drawLineTo(position);
    else
        _engine.canvas.setNeedsDisplay();
    _lastBrushPos = position;
}

void BrushTool::lift(QPointF position)
{
    if (position != _lastBrushPos && _isDrawingStarted)
        drawLineTo(position);
    end();
}

void BrushTool::end()
{
    _isDrawingCancelled = true;
    _engine.overlays.drawBrush = false;
    _engine.canvas.setNeedsDisplay();
    _setShowTools(true);
}

void BrushTool::yieldToView()
{
    const auto age = _engine.now() - _interactionStartTime;
    if (!_isDrawingStarted || _isDrawingCancelled || age >= youngStroke)
        return;
    _isDrawingCancelled = true;
    // Without a level of its own, undo would take back what was there before.
    _engine.jobs.whenReady([this] {
        if (_hasLevel)
            _engine.history.undo();
    });
}

bool BrushTool::yieldToChange()
{
    end();
    return true;
}

void BrushTool::showCursorAt(std::optional<QPointF> finger)
{
    if (!_engine.canvas.isOpen())
        return;
    if (finger)
        _engine.overlays.brushPosition = brushPosition(*finger);
    _engine.overlays.drawBrush = finger.has_value();
    _setShowTools(!finger);
    _engine.canvas.setNeedsDisplay();
}

// Above the finger, where the user can see it.
QPointF BrushTool::brushPosition(QPointF finger) const
{
    return finger - QPointF(0, _engine.brush.brushOffset());
}

void BrushTool::drawLineTo(QPointF position)
{
    _engine.strokes.drawLineFromPoint(_lastBrushPos, position, _engine.brush.brushSize(), _isErase);
}

} // namespace pelmira
