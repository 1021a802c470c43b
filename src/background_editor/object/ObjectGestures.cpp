#include "background_editor/object/ObjectGestures.h"

#include <QLineF>

#include <algorithm>
#include <cmath>
#include <utility>

namespace pelmira {
namespace {

using Part = SelectableObjectView::Part;

// Fingers that rest on the glass tremble by a point or two.
constexpr double slop = 4.0;

bool isHandle(Part part)
{
    return part == Part::ResizeButton || part == Part::ResizeSideHandle ||
           part == Part::ResizeBottomHandle;
}

bool contains(const std::vector<int>& touches, int identifier)
{
    return std::find(touches.begin(), touches.end(), identifier) != touches.end();
}

} // namespace

ObjectGestures::ObjectGestures(HitTest hitTest) : _hitTest(std::move(hitTest))
{
    _recognizers.handlePan = [this](PanGestureRecognizer& recognizer) {
        if (_object)
            _object->handlePanWithRecognizer(recognizer);
    };
    _recognizers.handlePinch = [this](PinchGestureRecognizer& recognizer) {
        if (_object)
            _object->handlePinchWithRecognizer(recognizer);
    };
    _recognizers.handleRotation = [this](RotationGestureRecognizer& recognizer) {
        if (_object)
            _object->handleRotationWithRecognizer(recognizer);
    };
}

void ObjectGestures::setObject(SelectableObjectView* object)
{
    cancel();
    _others.clear();
    _object = object;
}

bool ObjectGestures::isOurs(int identifier) const
{
    return contains(_touches, identifier);
}

TouchEvent ObjectGestures::ours(const TouchEvent& event) const
{
    TouchEvent ours = event;
    std::erase_if(ours.allTouches,
                  [this](const Touch& touch) { return !isOurs(touch.identifier); });
    return ours;
}

// A handle's drag runs alone. A palm beside a pen, or a finger beside the mouse, comes in events of
// its own, which say nothing of where the first is.
bool ObjectGestures::takes(const Touch& touch) const
{
    return _object && !_dragsHandle && (_touches.empty() || touch.kind == _kind);
}

// The palm lands first.
void ObjectGestures::leaveToPen()
{
    _others.insert(_others.end(), _touches.begin(), _touches.end());
    cancel();
}

void ObjectGestures::touchesBegan(const TouchEvent& withEvent)
{
    for (const Touch& touch : withEvent.allTouches) {
        if (isOurs(touch.identifier) || contains(_others, touch.identifier))
            continue;
        if (touch.kind == TouchKind::Pen && _kind == TouchKind::Finger)
            leaveToPen();
        const Part part = takes(touch) ? _hitTest(touch.location) : Part::None;
        if (part == Part::None) {
            _others.push_back(touch.identifier);
            continue;
        }
        _canBeTap = _touches.empty();
        _landed = _touches.empty() ? part : Part::Object;
        if (_touches.empty())
            _landedAt = _handleAt = touch.location;
        _kind = touch.kind;
        _touches.push_back(touch.identifier);
    }
    if (const TouchEvent event = ours(withEvent); !_dragsHandle && !event.allTouches.empty())
        _recognizers.touchesBegan(event);
}

void ObjectGestures::touchesMoved(const TouchEvent& withEvent)
{
    const TouchEvent event = ours(withEvent);
    if (event.allTouches.empty())
        return;
    const Touch& first = event.allTouches.front();
    if (_dragsHandle) {
        dragHandle(GestureState::Changed, first.location);
    } else if (isHandle(_landed) && event.isSingle() && !_recognizers.isRunning()) {
        startHandleDragIfMoved(first);
    } else {
        _recognizers.touchesMoved(event);
        _canBeTap = _canBeTap && !_recognizers.isRunning();
    }
}

void ObjectGestures::startHandleDragIfMoved(const Touch& touch)
{
    if (QLineF(_landedAt, touch.location).length() <= slop)
        return;
    _dragsHandle = true;
    _canBeTap = false;
    dragHandle(GestureState::Began, touch.location);
    dragHandle(GestureState::Changed, touch.location);
}

void ObjectGestures::dragHandle(GestureState state, QPointF location)
{
    if (!_object || !std::isfinite(location.x()) || !std::isfinite(location.y()))
        return;
    _handleAt = location;
    PanGestureRecognizer recognizer;
    recognizer.state = state;
    recognizer.touches = {location};
    if (_landed == Part::ResizeButton)
        _object->handleResizePanWithRecognizer(recognizer);
    else if (_landed == Part::ResizeSideHandle)
        _object->handleSideHandlePanWithRecognizer(recognizer);
    else
        _object->handleBottomHandlePanWithRecognizer(recognizer);
}

void ObjectGestures::touchesEnded(const TouchEvent& withEvent)
{
    for (const Touch& touch : withEvent.allTouches)
        if (touch.hasEnded)
            std::erase(_others, touch.identifier);
    const TouchEvent event = ours(withEvent);
    if (event.allTouches.empty())
        return;
    if (!_dragsHandle)
        _recognizers.touchesEnded(event);
    for (const Touch& touch : event.allTouches) {
        if (!touch.hasEnded)
            continue;
        std::erase(_touches, touch.identifier);
        if (std::exchange(_dragsHandle, false))
            dragHandle(GestureState::Ended, touch.location);
        else if (std::exchange(_canBeTap, false))
            tap(touch.location);
    }
    if (_touches.empty())
        _landed = Part::None;
}

void ObjectGestures::tap(QPointF location)
{
    if (!_object)
        return;
    if (_landed == Part::FlipButton)
        _object->handleTapOnFlipWithRecognizer();
    else if (_landed == Part::DeleteButton)
        _object->handleTapOnCloseWithRecognizer();
    else if (_landed == Part::EditButton)
        _object->handleTapOnEditWithRecognizer();
    else
        _object->handleTapWithRecognizer(_object->pointFromSuperview(location));
}

void ObjectGestures::touchesCancelled(const TouchEvent& withEvent)
{
    for (const Touch& touch : withEvent.allTouches)
        std::erase(_others, touch.identifier);
    if (!ours(withEvent).allTouches.empty())
        cancel();
}

void ObjectGestures::cancel()
{
    _recognizers.touchesCancelled();
    if (std::exchange(_dragsHandle, false))
        dragHandle(GestureState::Cancelled, _handleAt);
    _touches.clear();
    _landed = Part::None;
    _canBeTap = false;
}

void ObjectGestures::step(const ViewStep& step)
{
    if (_object && _touches.empty() && _hitTest(step.about) != Part::None)
        _recognizers.step(step);
}

} // namespace pelmira
