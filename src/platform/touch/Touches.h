#pragma once

#include <QPointF>

#include <vector>

namespace pelmira {

enum class TouchKind { Finger, Mouse, Pen, Keys };

/// One finger, or what stands in for it. The identifier is its own for as long as it is down.
struct Touch {
    int identifier = 0;
    QPointF location; ///< points, y down, from the view's top left
    TouchKind kind = TouchKind::Finger;
    bool hasEnded = false; ///< it lifts with this event
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

/// One step of the view that a wheel, a touchpad or a dragging mouse asks for.
struct ViewStep {
    QPointF about;       ///< points; what keeps its place
    QPointF translation; ///< points, y down
    double scale = 1.0;
    double rotation = 0.0; ///< radians, clockwise on the screen
};

/// Takes the touches of a view, and what stands in for two fingers.
class TouchResponder {
public:
    virtual ~TouchResponder() = default;
    virtual void viewStepped(const ViewStep&) {}
    /// A pen touches the screen or hovers over it, or has gone.
    virtual void penIsNear(bool) {}
    /// The pen's side button, or a double tap on its barrel.
    virtual void pencilInteractionDidTap() {}
    virtual void touchesBegan(const TouchEvent& withEvent) = 0;
    virtual void touchesMoved(const TouchEvent& withEvent) = 0;
    virtual void touchesEnded(const TouchEvent& withEvent) = 0;
    virtual void touchesCancelled(const TouchEvent& withEvent) = 0;
};

} // namespace pelmira
