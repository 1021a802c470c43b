#include "mask_editor/tools/TouchRouter.h"

namespace pelmira {

void TouchRouter::touchesBegan(const TouchEvent& withEvent)
{
    if (hideBrushAdjustView())
        return;
    const TouchKind kind = withEvent.anyTouch().kind;
    if (_penIsNear && kind == TouchKind::Finger)
        return;
    if (withEvent.isSingle()) {
        _inProgressInteraction = mode();
        _kind = kind;
    }
    // This goes out for a further finger too: it is how a tool learns that the touch is not its.
    send(withEvent, TouchBegan);
}

void TouchRouter::touchesMoved(const TouchEvent& withEvent)
{
    if (!hideBrushAdjustView() && belongsToSelectedTool(withEvent))
        send(withEvent, TouchMoved);
}

void TouchRouter::touchesEnded(const TouchEvent& withEvent)
{
    hideBrushAdjustView();
    if (belongsToSelectedTool(withEvent))
        send(withEvent, TouchEnded);
    if (withEvent.anyTouch().kind == _kind)
        endInteraction();
}

void TouchRouter::touchesCancelled(const TouchEvent& withEvent)
{
    hideBrushAdjustView();
    if (belongsToSelectedTool(withEvent))
        send(withEvent, TouchCancelled);
    if (withEvent.anyTouch().kind == _kind)
        endInteraction();
}

// A palm that moves under a drawing pen is not the pen.
bool TouchRouter::belongsToSelectedTool(const TouchEvent& event) const
{
    return _inProgressInteraction == mode() && event.anyTouch().kind == _kind;
}

void TouchRouter::send(const TouchEvent& event, TouchPhase phase) const
{
    switch (mode()) {
    case ModeWand:
        handleWandEvent(event, phase);
        break;
    case ModeErase:
    case ModeReplace:
        handleBrushEvent(event, phase);
        break;
    case ModeNone:
        break;
    }
}

} // namespace pelmira
