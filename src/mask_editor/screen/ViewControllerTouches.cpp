#include "mask_editor/screen/ViewController.h"

// Whom the editor's screen hands fingers, pens, keys and gestures to.

namespace pelmira {

void ViewController::connectTouches()
{
    _router.mode = [this] { return _mode; };
    _router.hideBrushAdjustView = [this] { return hideBrushAdjustView(); };
    _router.handleWandEvent = [this](const TouchEvent& event, TouchPhase phase) {
        if (_engine)
            _engine->wand.handleWandEvent(event, phase);
    };
    _router.handleBrushEvent = [this](const TouchEvent& event, TouchPhase phase) {
        if (_engine)
            _engine->strokes.handleBrushEvent(event, phase,
                                              _router.inProgressInteraction() == ModeErase);
    };
    _gestures.handlePan = [this](PanGestureRecognizer& recognizer) { handlePan(recognizer); };
    _gestures.handlePinch = [this](PinchGestureRecognizer& recognizer) {
        if (_engine)
            _engine->navigation.handlePinch(recognizer);
    };
    _gestures.handleRotation = [this](RotationGestureRecognizer& recognizer) {
        if (_engine)
            _engine->navigation.handleRotation(recognizer);
    };
}

void ViewController::connectKeyboardAim()
{
    _keyboardAim.viewSize = [this] { return viewSize(); };
    _keyboardAim.paints = [this] { return _mode == ModeErase || _mode == ModeReplace; };
    _keyboardAim.showBrushAt = [this](std::optional<QPointF> finger) {
        setShowTools(!finger);
        if (_engine)
            _engine->strokes.showBrushAt(finger);
    };
}

void ViewController::handlePan(PanGestureRecognizer& recognizer)
{
    if (!_engine || !_engine->canvas.isOpen())
        return;
    const EditorMode tool = _router.inProgressInteraction();
    if (tool == ModeErase || tool == ModeReplace)
        _engine->strokes.takeBackYoungStroke();
    _router.endInteraction();
    _engine->navigation.handlePan(recognizer);
}

// The recognisers see a touch before the tools do.
void ViewController::touchesBegan(const TouchEvent& withEvent)
{
    if (_router.isPalm(withEvent))
        return;
    if (withEvent.anyTouch().kind != TouchKind::Keys) {
        _keyboardAim.leave();
        _keyboardAim.goOnFrom(withEvent.anyTouch().location);
    }
    if (_workKeeper)
        _workKeeper->touched(withEvent);
    if (withEvent.anyTouch().kind == TouchKind::Pen)
        _gestures.touchesCancelled(); // the palm was there first
    else
        _gestures.touchesBegan(withEvent);
    _router.touchesBegan(withEvent);
}

void ViewController::touchesMoved(const TouchEvent& withEvent)
{
    if (_router.isPalm(withEvent))
        return;
    _gestures.touchesMoved(withEvent);
    _router.touchesMoved(withEvent);
}

void ViewController::touchesEnded(const TouchEvent& withEvent)
{
    if (_router.isPalm(withEvent))
        return;
    _gestures.touchesEnded(withEvent);
    _router.touchesEnded(withEvent);
    if (_workKeeper)
        _workKeeper->touched(withEvent);
}

void ViewController::touchesCancelled(const TouchEvent& withEvent)
{
    if (_router.isPalm(withEvent))
        return;
    _gestures.touchesCancelled();
    _router.touchesCancelled(withEvent);
    if (_workKeeper)
        _workKeeper->touchesCancelled();
}

void ViewController::viewStepped(const ViewStep& step)
{
    // A wheel that turns under a painting finger is a slip.
    if (_router.inProgressInteraction() == ModeNone)
        _gestures.step(step);
}

} // namespace pelmira
