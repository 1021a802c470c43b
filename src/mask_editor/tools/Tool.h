#pragma once

#include "platform/touch/Touches.h"

#include <QPointF>

#include <optional>

namespace pelmira {

class ZKLScrollDial;

/// What one finger does on the photo, with all that belongs to it: its dial, what it shows over the
/// photo and where the keys' cursor stands. The editor chooses one; `TouchRouter` hands it touches.
class Tool {
public:
    Tool() = default;
    Tool(const Tool&) = delete;
    Tool& operator=(const Tool&) = delete;
    virtual ~Tool() = default;

    /// It is taken in hand, where another was before.
    virtual void selected() {}
    /// What the user sets it with, made when it is first asked for. The tool is told of its turns.
    virtual ZKLScrollDial& dial() = 0;

    /// The finger lands, moves, lifts or is taken away. A further finger's landing is told too: the
    /// touch is the view's then.
    virtual void handleEvent(const TouchEvent& event, TouchPhase phase) = 0;
    /// The touch under way moves the view from now on.
    virtual void yieldToView() {}
    /// Something else is about to change the mask; true if the touch under way ends with that.
    virtual bool yieldToChange() { return false; }
    /// The view is about to get another size.
    virtual void viewWillTransitionToSize() {}

    /// Whether it works all along the finger's way; else it does where the finger lifts.
    virtual bool paints() const = 0;
    /// Shows where a finger would work, in screen points, or no more.
    virtual void showCursorAt(std::optional<QPointF>) {}
};

} // namespace pelmira
