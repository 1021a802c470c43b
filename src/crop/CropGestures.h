#pragma once

#include <QPointF>

#include <deque>
#include <vector>

namespace pelmira {

class TOCropView;

/// Tells from the touches on the crop surface what they do to it. A finger that lands on the box's
/// edge drags the box, any other one the image; two fingers pan and zoom the image. The first two
/// count. Points of the surface; seconds.
class CropGestures {
public:
    /// The view outlives the gestures.
    explicit CropGestures(TOCropView& view) : _view(view) {}

    /// One that is down already changes nothing.
    void touchBegan(int identifier, QPointF location, double now);
    void touchMoved(int identifier, QPointF location, double now);
    void touchEnded(int identifier, double now);
    /// The fingers were taken away; what they did stays.
    void touchesCancelled(double now);

private:
    struct Finger {
        int identifier;
        QPointF location;
    };
    struct Sample {
        double time;
        QPointF middle;
    };

    QPointF middle() const;
    double spread() const;
    QPointF velocity(double now) const;
    void takeHoldOfImage(double now);
    void note(double now);

    TOCropView& _view;
    std::vector<Finger> _fingers;
    bool _dragsBox = false;
    QPointF _landed;
    double _spreadAtStart = 0.0;
    std::deque<Sample> _samples; ///< of the last moments
};

} // namespace pelmira
