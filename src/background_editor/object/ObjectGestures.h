#pragma once

#include "background_editor/object/SelectableObjectView.h"
#include "platform/touch/GestureRecognizers.h"
#include "platform/touch/Touches.h"

#include <functional>
#include <vector>

namespace pelmira {

/// Tells from the touches on a work area what they do to its object: a tap, a drag of a handle,
/// which runs alone, or pan, pinch and rotation together. Touches are in the work area's points.
class ObjectGestures {
public:
    using HitTest = std::function<SelectableObjectView::Part(QPointF)>;

    /// What of the object a touch at a point reaches; the object is there as long as that says so.
    explicit ObjectGestures(HitTest hitTest);

    /// Nothing while there is no object. A new one drops the gestures of the one before.
    void setObject(SelectableObjectView* object);

    void touchesBegan(const TouchEvent& withEvent);
    void touchesMoved(const TouchEvent& withEvent);
    void touchesEnded(const TouchEvent& withEvent);
    void touchesCancelled(const TouchEvent& withEvent);
    /// One step of a wheel or a touchpad.
    void step(const ViewStep& step);

private:
    using Part = SelectableObjectView::Part;

    bool isOurs(int identifier) const;
    bool takes(const Touch& touch) const;
    TouchEvent ours(const TouchEvent& event) const;
    void leaveToPen();
    void cancel();
    void startHandleDragIfMoved(const Touch& touch);
    void dragHandle(GestureState state, QPointF location);
    void tap(QPointF location);

    HitTest _hitTest;
    SelectableObjectView* _object = nullptr;
    GestureRecognizers _recognizers{1};
    std::vector<int> _touches;           ///< those that the object takes, in the order of landing
    TouchKind _kind = TouchKind::Finger; ///< theirs
    std::vector<int> _others;            ///< those that landed elsewhere, wherever they are now
    Part _landed = Part::None;           ///< where the first of them landed
    QPointF _landedAt;
    QPointF _handleAt; ///< where a handle's drag has got to
    bool _canBeTap = false;
    bool _dragsHandle = false;
};

} // namespace pelmira
