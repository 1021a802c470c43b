#pragma once

#include "mask_editor/surface/EditorCanvas.h"
#include "platform/touch/GestureRecognizers.h"

namespace pelmira {

/// Moves, zooms and turns the photo on the screen. Nothing is limited and nothing snaps back. Each
/// call takes what its recogniser has gathered and sets it back, so that the next one brings a
/// difference. All three do nothing while no photo is open.
class ViewNavigation {
public:
    explicit ViewNavigation(EditorCanvas& canvas) : _canvas(canvas) {}

    void handlePan(PanGestureRecognizer& recognizer);
    /// About the point between the fingers, which stays where it is.
    void handlePinch(PinchGestureRecognizer& recognizer);
    void handleRotation(RotationGestureRecognizer& recognizer);

private:
    static QPointF centerPointOfRecognizerTouches(const GestureRecognizer& recognizer);
    /// Puts the photo's centre where `move` takes it, given as a distance from the touches' centre
    /// in points, y down.
    template <class Move>
    void moveCenterAbout(QPointF touchCenter, Move move);

    EditorCanvas& _canvas;
};

} // namespace pelmira
