#include "crop/CropGestures.h"

#include "crop/TOCropView.h"

#include <QLineF>

#include <algorithm>

namespace pelmira {
namespace {

constexpr std::size_t mostFingers = 2;
constexpr double slop = 8.0;           // points that a resting finger may wander
constexpr double sampledSeconds = 0.1; // of a finger's way that tell its velocity
constexpr double restSeconds = 0.05;   // without a move, after which a finger is at rest
constexpr double fastest = 8000.0;     // points a second
constexpr double leastSpread = 1.0;

} // namespace

void CropGestures::touchBegan(int identifier, QPointF location, double now)
{
    if (_fingers.size() == mostFingers ||
        std::ranges::find(_fingers, identifier, &Finger::identifier) != _fingers.end())
        return;
    if (_fingers.empty()) {
        _fingers.push_back({identifier, location});
        _landed = location;
        _dragsBox = _view.beginCropBoxDrag(location, now);
        if (!_dragsBox)
            takeHoldOfImage(now);
        return;
    }
    if (_dragsBox) {
        // Of two fingers meant for the image one easily lands on an edge.
        if (QLineF(_landed, _fingers.front().location).length() > slop)
            return;
        _view.updateCropBoxFrameWithGesturePoint(_landed);
        _view.endCropBoxDrag(now);
        _dragsBox = false;
    }
    _fingers.push_back({identifier, location});
    takeHoldOfImage(now);
}

void CropGestures::touchMoved(int identifier, QPointF location, double now)
{
    const auto finger = std::ranges::find(_fingers, identifier, &Finger::identifier);
    if (finger == _fingers.end())
        return;
    finger->location = location;
    if (_dragsBox) {
        _view.updateCropBoxFrameWithGesturePoint(location);
        return;
    }
    note(now);
    _view.scroll(middle(), _fingers.size() == 2 ? spread() / _spreadAtStart : 1.0);
}

void CropGestures::touchEnded(int identifier, double now)
{
    const auto finger = std::ranges::find(_fingers, identifier, &Finger::identifier);
    if (finger == _fingers.end())
        return;
    _fingers.erase(finger);
    if (!_fingers.empty())
        takeHoldOfImage(now);
    else if (_dragsBox)
        _view.endCropBoxDrag(now);
    else
        _view.endScroll(velocity(now), now);
}

void CropGestures::touchesCancelled(double now)
{
    if (_fingers.empty())
        return;
    _fingers.clear();
    if (_dragsBox)
        _view.endCropBoxDrag(now);
    else
        _view.endScroll({}, now);
}

QPointF CropGestures::middle() const
{
    return (_fingers.front().location + _fingers.back().location) / 2.0;
}

double CropGestures::spread() const
{
    return std::max(leastSpread,
                    QLineF(_fingers.front().location, _fingers.back().location).length());
}

void CropGestures::takeHoldOfImage(double now)
{
    _samples.clear();
    _spreadAtStart = spread();
    _view.beginScroll(middle(), now);
    note(now);
}

void CropGestures::note(double now)
{
    _samples.push_back({now, middle()});
    while (_samples.front().time < now - sampledSeconds)
        _samples.pop_front();
}

QPointF CropGestures::velocity(double now) const
{
    if (_samples.size() < 2 || now - _samples.back().time > restSeconds)
        return {};
    const double seconds = std::max(_samples.back().time - _samples.front().time, 0.005);
    const QPointF way = _samples.back().middle - _samples.front().middle;
    return {std::clamp(way.x() / seconds, -fastest, fastest),
            std::clamp(way.y() / seconds, -fastest, fastest)};
}

} // namespace pelmira
