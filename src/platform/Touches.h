#pragma once

#include <QPointF>

#include <vector>

namespace pelmira {

enum class TouchKind { Finger, Mouse, Pen };

/// One finger, or what stands in for it. The identifier is its own for as long as it is down.
struct Touch {
    int identifier = 0;
    QPointF location; ///< points, y down, from the view's top left
    TouchKind kind = TouchKind::Finger;
};

/// Everything that is on the view at the moment of an event, in the order of landing; a touch
/// that ends with the event is still among them.
struct TouchEvent {
    std::vector<Touch> allTouches;

    /// Some touch of the event. There is always one.
    const Touch& anyTouch() const { return allTouches.front(); }
    bool isSingle() const { return allTouches.size() == 1; }
};

/// The phases of a touch, as the tools count them.
enum TouchPhase { TouchBegan = 0, TouchMoved = 1, TouchEnded = 3, TouchCancelled = 4 };

/// Takes the touches of a view.
class TouchResponder {
public:
    virtual ~TouchResponder() = default;
    virtual void touchesBegan(const TouchEvent& withEvent) = 0;
    virtual void touchesMoved(const TouchEvent& withEvent) = 0;
    virtual void touchesEnded(const TouchEvent& withEvent) = 0;
    virtual void touchesCancelled(const TouchEvent& withEvent) = 0;
};

} // namespace pelmira
