#pragma once

#include "platform/touch/GestureRecognizers.h"
#include "platform/touch/Touches.h"

namespace pelmira {

class BrushControls;
class Tool;
class ViewNavigation;

/// Decides whose a touch is: one finger is the chosen tool's, from its landing until any finger
/// lifts, two are the view's. A change of tool in between cuts both tools off from the rest of the
/// touch. A touch beside the open brush panel closes it and does nothing else. While a pen is near,
/// fingers are palms: they start no tool.
class TouchRouter final : public TouchResponder {
public:
    /// Both outlive the router.
    TouchRouter(ViewNavigation& navigation, BrushControls& brushControls);

    /// Chooses the tool, if any, which outlives the router.
    void setTool(Tool* tool) { _tool = tool; }

    void touchesBegan(const TouchEvent& withEvent) override;
    void touchesMoved(const TouchEvent& withEvent) override;
    void touchesEnded(const TouchEvent& withEvent) override;
    void touchesCancelled(const TouchEvent& withEvent) override;
    void viewStepped(const ViewStep& step) override;
    void penIsNear(bool isNear) override { _penIsNear = isNear; }

    /// A finger beside a pen that is at work: the hand that holds it. It does nothing at all.
    bool isPalm(const TouchEvent& event) const
    {
        return _inProgressInteraction && _kind == TouchKind::Pen &&
               event.anyTouch().kind == TouchKind::Finger;
    }

    /// To be told before something other than the tool under way changes the mask.
    void maskWillChange();
    /// To be told before the view gets another size.
    void viewWillTransitionToSize();

private:
    void handlePan(PanGestureRecognizer& recognizer);
    void send(const TouchEvent& event, TouchPhase phase);
    void finish(const TouchEvent& event, TouchPhase phase);

    ViewNavigation& _navigation;
    BrushControls& _brushControls;
    GestureRecognizers _gestures;
    Tool* _tool = nullptr;
    Tool* _inProgressInteraction = nullptr; ///< whose the touches under way are, if a tool's
    TouchKind _kind = TouchKind::Finger;    ///< of the touch that the interaction began with
    bool _penIsNear = false;
};

} // namespace pelmira
