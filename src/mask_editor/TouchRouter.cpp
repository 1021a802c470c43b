#include "mask_editor/TouchRouter.h"

namespace pelmira {

void TouchRouter::touchesBegan(const TouchEvent& withEvent)
{
    if (hideBrushAdjustView())
        return;
    if (withEvent.isSingle())
        _inProgressInteraction = mode();
    // This goes out for a further finger too: it is how a tool learns that the touch is not its.
    send(withEvent, TouchBegan);
}

void TouchRouter::touchesMoved(const TouchEvent& withEvent)
{
    if (!hideBrushAdjustView() && belongsToSelectedTool())
        send(withEvent, TouchMoved);
}

void TouchRouter::touchesEnded(const TouchEvent& withEvent)
{
    hideBrushAdjustView();
    if (belongsToSelectedTool())
        send(withEvent, TouchEnded);
    endInteraction();
}

void TouchRouter::touchesCancelled(const TouchEvent& withEvent)
{
    hideBrushAdjustView();
    if (belongsToSelectedTool())
        send(withEvent, TouchCancelled);
    endInteraction();
}

bool TouchRouter::belongsToSelectedTool() const
{
    return _inProgressInteraction == mode();
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
