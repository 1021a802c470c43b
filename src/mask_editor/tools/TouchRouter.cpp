#include "mask_editor/tools/TouchRouter.h"

#include "mask_editor/tools/BrushControls.h"
#include "mask_editor/tools/Tool.h"
#include "mask_editor/tools/ViewNavigation.h"

namespace pelmira {

TouchRouter::TouchRouter(ViewNavigation& navigation, BrushControls& brushControls)
    : _navigation(navigation), _brushControls(brushControls)
{
    _gestures.handlePan = [this](PanGestureRecognizer& recognizer) { handlePan(recognizer); };
    _gestures.handlePinch = [this](PinchGestureRecognizer& recognizer) {
        _navigation.handlePinch(recognizer);
    };
    _gestures.handleRotation = [this](RotationGestureRecognizer& recognizer) {
        _navigation.handleRotation(recognizer);
    };
}

// The recognisers see a touch before the tools do.
void TouchRouter::touchesBegan(const TouchEvent& withEvent)
{
    if (isPalm(withEvent))
        return;
    const TouchKind kind = withEvent.anyTouch().kind;
    if (kind == TouchKind::Pen)
        _gestures.touchesCancelled(); // the palm was there first
    else
        _gestures.touchesBegan(withEvent);
    if (_brushControls.hideBrushAdjustView() || (_penIsNear && kind == TouchKind::Finger))
        return;
    if (withEvent.isSingle()) {
        _inProgressInteraction = _tool;
        _kind = kind;
    }
    // This goes out for a further finger too: it is how a tool learns that the touch is not its.
    if (_tool)
        _tool->handleEvent(withEvent, TouchBegan);
}

void TouchRouter::touchesMoved(const TouchEvent& withEvent)
{
    if (isPalm(withEvent))
        return;
    _gestures.touchesMoved(withEvent);
    if (!_brushControls.hideBrushAdjustView())
        send(withEvent, TouchMoved);
}

void TouchRouter::touchesEnded(const TouchEvent& withEvent)
{
    if (isPalm(withEvent))
        return;
    _gestures.touchesEnded(withEvent);
    finish(withEvent, TouchEnded);
}

void TouchRouter::touchesCancelled(const TouchEvent& withEvent)
{
    if (isPalm(withEvent))
        return;
    _gestures.touchesCancelled();
    finish(withEvent, TouchCancelled);
}

void TouchRouter::finish(const TouchEvent& event, TouchPhase phase)
{
    _brushControls.hideBrushAdjustView();
    send(event, phase);
    if (event.anyTouch().kind == _kind)
        _inProgressInteraction = nullptr;
}

// A palm that moves under a drawing pen is not the pen.
void TouchRouter::send(const TouchEvent& event, TouchPhase phase)
{
    if (_tool && _inProgressInteraction == _tool && event.anyTouch().kind == _kind)
        _tool->handleEvent(event, phase);
}

void TouchRouter::viewStepped(const ViewStep& step)
{
    // A wheel that turns under a painting finger is a slip.
    if (!_inProgressInteraction)
        _gestures.step(step);
}

void TouchRouter::handlePan(PanGestureRecognizer& recognizer)
{
    if (_inProgressInteraction)
        _inProgressInteraction->yieldToView();
    _inProgressInteraction = nullptr;
    _navigation.handlePan(recognizer);
}

void TouchRouter::maskWillChange()
{
    if (_inProgressInteraction && _inProgressInteraction->yieldToChange())
        _inProgressInteraction = nullptr;
}

void TouchRouter::viewWillTransitionToSize()
{
    if (_inProgressInteraction)
        _inProgressInteraction->viewWillTransitionToSize();
}

} // namespace pelmira
