#pragma once

#include "platform/touch/Touches.h"

#include <QPointF>

#include <algorithm>

namespace pelmira::test {

/// Fingers on a view, or a pen beside them, which sends them to its responder.
template <class Responder>
class Fingers {
public:
    explicit Fingers(Responder& responder, TouchKind kind = TouchKind::Finger)
        : _responder(responder), _kind(kind)
    {
    }

    void press(int finger, QPointF at)
    {
        _event.allTouches.push_back({finger, at, _kind});
        _responder.touchesBegan(_event);
    }
    void move(int finger, QPointF to)
    {
        touch(finger).location = to;
        _responder.touchesMoved(_event);
    }
    void lift(int finger)
    {
        touch(finger).hasEnded = true;
        _responder.touchesEnded(_event);
        std::erase_if(_event.allTouches, [](const Touch& each) { return each.hasEnded; });
    }
    void cancel()
    {
        _responder.touchesCancelled(_event);
        _event = {};
    }
    void tap(QPointF at)
    {
        press(0, at);
        lift(0);
    }
    void stroke(QPointF from, QPointF to)
    {
        drag(from, to);
        lift(0);
    }
    /// Not lifted.
    void drag(QPointF from, QPointF to)
    {
        press(0, from);
        move(0, (from + to) / 2.0);
        move(0, to);
    }

private:
    Touch& touch(int finger)
    {
        return *std::find_if(_event.allTouches.begin(), _event.allTouches.end(),
                             [=](const Touch& each) { return each.identifier == finger; });
    }

    Responder& _responder;
    TouchKind _kind;
    TouchEvent _event;
};

} // namespace pelmira::test
