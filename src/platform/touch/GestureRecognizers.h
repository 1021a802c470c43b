#pragma once

#include "platform/touch/Touches.h"

#include <QPointF>

#include <functional>
#include <vector>

namespace pelmira {

enum class GestureState { Possible = 0, Began = 1, Changed = 2, Ended = 3, Cancelled = 4 };

/// What the three gestures of two fingers have in common: where the fingers are, in points of the
/// view, and how far the gesture has come.
struct GestureRecognizer {
    GestureState state = GestureState::Possible;
    std::vector<QPointF> touches;

    std::size_t numberOfTouches() const { return touches.size(); }
    QPointF locationOfTouch(std::size_t index) const { return touches[index]; }
};

/// Each value counts from the gesture's beginning or from where its handler last set it.
struct PanGestureRecognizer : GestureRecognizer {
    QPointF translation; ///< points, y down
};
struct PinchGestureRecognizer : GestureRecognizer {
    double scale = 1.0;
};
struct RotationGestureRecognizer : GestureRecognizer {
    double rotation = 0.0; ///< radians, clockwise on the screen
};

/// Tells pan, pinch and rotation from the touches of a view; all three run together, from the
/// moment when enough fingers are down and one of them has moved a little, be it before the other
/// came. What a touchpad, a wheel or a dragging mouse asks for is reported through the same
/// recognisers.
class GestureRecognizers {
public:
    /// One finger can only pan.
    explicit GestureRecognizers(std::size_t minimumNumberOfTouches = 2)
        : _minimumNumberOfTouches(minimumNumberOfTouches)
    {
    }

    std::function<void(PanGestureRecognizer&)> handlePan;
    std::function<void(PinchGestureRecognizer&)> handlePinch;
    std::function<void(RotationGestureRecognizer&)> handleRotation;

    void touchesBegan(const TouchEvent& withEvent);
    void touchesMoved(const TouchEvent& withEvent);
    void touchesEnded(const TouchEvent& withEvent);
    void touchesCancelled();

    bool isRunning() const { return _isRunning; }

    /// One step without fingers. It begins and ends a gesture of its own.
    void step(const ViewStep& step);

private:
    struct Pose {
        QPointF centre;
        double spread = 0.0; ///< mean distance of the touches from their centre
        double angle = 0.0;  ///< of the line from the first touch to the second
    };

    static Pose poseOf(const std::vector<QPointF>& touches);
    void follow(const std::vector<QPointF>& touches);
    void restart(const TouchEvent& event);
    void beginIfMoved(const std::vector<QPointF>& touches);
    void report(GestureState state, const std::vector<QPointF>& touches);
    void finish(GestureState state);

    const std::size_t _minimumNumberOfTouches;
    bool _isRunning = false;
    bool _hasMoved = false;      ///< one of the fingers that are down
    std::vector<QPointF> _start; ///< where the present set of touches was when it came together
    Pose _last;
    PanGestureRecognizer _pan;
    PinchGestureRecognizer _pinch;
    RotationGestureRecognizer _rotation;
};

} // namespace pelmira
