#pragma once

#include "platform/touch/Touches.h"

#include <functional>

namespace pelmira {

/// The tools, as the editor counts them.
enum EditorMode { ModeNone = 0, ModeWand = 1, ModeErase = 2, ModeReplace = 3 };

/// Decides which tool a touch belongs to: one finger is the tool that was selected when it landed,
/// until any finger lifts or the view is moved. A change of tool in between cuts both off from the
/// rest of the touch. While a pen is near, fingers are palms: they start no tool.
class TouchRouter final : public TouchResponder {
public:
    using Handler = std::function<void(const TouchEvent&, TouchPhase)>;

    /// The selected tool.
    std::function<EditorMode()> mode;
    /// Closes the brush panel; true if it was open. Such a touch has done its work.
    std::function<bool()> hideBrushAdjustView;
    Handler handleWandEvent;
    Handler handleBrushEvent;

    void touchesBegan(const TouchEvent& withEvent) override;
    void touchesMoved(const TouchEvent& withEvent) override;
    void touchesEnded(const TouchEvent& withEvent) override;
    void touchesCancelled(const TouchEvent& withEvent) override;

    void penIsNear(bool isNear) override { _penIsNear = isNear; }

    /// A finger beside a pen that is at work: the hand that holds it. It moves no view either.
    bool isPalm(const TouchEvent& event) const
    {
        return _inProgressInteraction != ModeNone && _kind == TouchKind::Pen &&
               event.anyTouch().kind == TouchKind::Finger;
    }
    EditorMode inProgressInteraction() const { return _inProgressInteraction; }
    /// The touches under way belong to the view now; no tool gets any more of them.
    void endInteraction() { _inProgressInteraction = ModeNone; }

private:
    void send(const TouchEvent& event, TouchPhase phase) const;
    bool belongsToSelectedTool(const TouchEvent& event) const;

    EditorMode _inProgressInteraction = ModeNone;
    TouchKind _kind = TouchKind::Finger; ///< of the touch that the interaction began with
    bool _penIsNear = false;
};

} // namespace pelmira
