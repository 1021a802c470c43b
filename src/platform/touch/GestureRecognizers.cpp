#include "platform/touch/GestureRecognizers.h"

#include <QLineF>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace pelmira {
namespace {

// Fingers that rest on the glass tremble by a point or two.
constexpr double slop = 4.0;
// Closer than this their spread says nothing about a scale.
constexpr double leastSpread = 1.0;

std::vector<QPointF> locationsOf(const TouchEvent& event)
{
    std::vector<QPointF> locations;
    for (const Touch& touch : event.allTouches)
        locations.push_back(touch.location);
    return locations;
}

bool isFinite(QPointF p)
{
    return std::isfinite(p.x()) && std::isfinite(p.y());
}

} // namespace

GestureRecognizers::Pose GestureRecognizers::poseOf(const std::vector<QPointF>& touches)
{
    Pose pose;
    for (const QPointF& touch : touches)
        pose.centre += touch / double(touches.size());
    for (const QPointF& touch : touches)
        pose.spread += QLineF(pose.centre, touch).length() / double(touches.size());
    if (touches.size() < 2)
        return pose;
    const QPointF line = touches[1] - touches[0];
    pose.angle = std::atan2(line.y(), line.x());
    return pose;
}

void GestureRecognizers::touchesBegan(const TouchEvent& withEvent)
{
    if (withEvent.isSingle())
        _hasMoved = false;
    restart(withEvent);
    beginIfMoved(_start);
}

void GestureRecognizers::touchesMoved(const TouchEvent& withEvent)
{
    const std::vector<QPointF> touches = locationsOf(withEvent);
    if (touches.size() != _start.size() || !std::all_of(touches.begin(), touches.end(), isFinite))
        return;
    _hasMoved |=
        std::mismatch(touches.begin(), touches.end(), _start.begin(), [](QPointF a, QPointF b) {
            return QLineF(a, b).length() <= slop;
        }).first != touches.end();
    beginIfMoved(touches);
    if (_isRunning && touches.size() >= _minimumNumberOfTouches)
        follow(touches);
}

void GestureRecognizers::beginIfMoved(const std::vector<QPointF>& touches)
{
    if (_isRunning || !_hasMoved || touches.size() < _minimumNumberOfTouches ||
        !std::all_of(touches.begin(), touches.end(), isFinite))
        return;
    _isRunning = true;
    report(GestureState::Began, touches);
}

void GestureRecognizers::touchesEnded(const TouchEvent& withEvent)
{
    TouchEvent remaining = withEvent;
    std::erase_if(remaining.allTouches, [](const Touch& touch) { return touch.hasEnded; });
    if (remaining.allTouches.size() < _minimumNumberOfTouches)
        finish(GestureState::Ended);
    restart(remaining);
}

void GestureRecognizers::touchesCancelled()
{
    finish(GestureState::Cancelled);
    _start.clear();
    _hasMoved = false;
}

void GestureRecognizers::step(const ViewStep& step)
{
    const bool isUsable = isFinite(step.about) && isFinite(step.translation) &&
                          std::isfinite(step.scale) && step.scale > 0 &&
                          std::isfinite(step.rotation);
    if (_isRunning || !isUsable)
        return;
    report(GestureState::Began, {step.about});
    _pan.translation = step.translation;
    _pinch.scale = step.scale;
    _rotation.rotation = step.rotation;
    report(GestureState::Changed, {step.about});
    report(GestureState::Ended, {step.about});
}

void GestureRecognizers::follow(const std::vector<QPointF>& touches)
{
    const Pose now = poseOf(touches);
    _pan.translation += now.centre - _last.centre;
    if (_last.spread > leastSpread && now.spread > leastSpread)
        _pinch.scale *= now.spread / _last.spread;
    // The short way round, whichever side of the half turn the angles lie on.
    _rotation.rotation += std::remainder(now.angle - _last.angle, 2 * std::numbers::pi);
    _last = now;
    report(GestureState::Changed, touches);
}

// Fingers come and go during a gesture: it goes on from where they are, without a jump.
void GestureRecognizers::restart(const TouchEvent& event)
{
    _start = locationsOf(event);
    if (!_start.empty())
        _last = poseOf(_start);
}

void GestureRecognizers::report(GestureState state, const std::vector<QPointF>& touches)
{
    if (state == GestureState::Began) {
        _pan.translation = {};
        _pinch.scale = 1.0;
        _rotation.rotation = 0.0;
    }
    _pan.state = _pinch.state = _rotation.state = state;
    _pan.touches = _pinch.touches = _rotation.touches = touches;
    if (handlePan)
        handlePan(_pan);
    if (handlePinch)
        handlePinch(_pinch);
    if (handleRotation)
        handleRotation(_rotation);
}

void GestureRecognizers::finish(GestureState state)
{
    if (_isRunning)
        report(state, _start);
    _isRunning = false;
}

} // namespace pelmira
