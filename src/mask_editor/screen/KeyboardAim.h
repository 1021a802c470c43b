#pragma once

#include "platform/touch/Touches.h"

#include <QObject>
#include <QPointF>
#include <QSizeF>

#include <functional>
#include <optional>

namespace pelmira {

class Tool;

/// Works the photo from the keyboard: arrows move an aim, and what presses there becomes the touch
/// of one finger, so that every tool does what it does under one. The wand's finger is down from
/// the first arrow, under its magnifier, until Enter lifts it. A brush's is down while the space
/// bar is held, or from one Enter to the next. Points are those of the view, y down.
class KeyboardAim final : public QObject {
    Q_OBJECT

public:
    /// Touches and steps of the view go to the responder, which outlives this.
    explicit KeyboardAim(TouchResponder& responder) : _responder(responder) {}

    /// The view's size in points; the aim stays within it.
    std::function<QSizeF()> viewSize;
    /// The tool in hand, if any. Not owned.
    void setTool(Tool* tool) { _tool = tool; }

    /// An arrow moves the aim, with Shift by long steps, and with Control the photo under it. Plus
    /// and minus zoom, Enter presses, the space bar holds, Escape takes the aim away. False where
    /// the photo wants to know of the key too, or where it means nothing here.
    Q_INVOKABLE bool keyPressed(int key, int modifiers, bool isAutoRepeat);
    Q_INVOKABLE void keyReleased(int key, bool isAutoRepeat);

    /// A short step, or a long one, by the signs of x and y.
    void move(int x, int y, bool strides);
    Q_INVOKABLE void press();
    void hold();
    void release();
    /// Zooms about the aim.
    void zoomBy(double factor);
    /// Moves the photo under the aim, by the signs of x and y.
    void moveView(int x, int y);
    /// Takes the aim away; the wand fills nothing, what a brush has painted stays.
    Q_INVOKABLE void leave();

    /// Goes on from there, once an arrow is pressed.
    void goOnFrom(QPointF location) { _location = location; }

private:
    void arrowPressed(int x, int y, Qt::KeyboardModifiers modifiers);
    bool paints() const;
    QPointF location() const;
    void show();
    void begin();
    void end();
    void stepView(const ViewStep& step);
    TouchEvent touch(bool hasEnded = false) const;

    TouchResponder& _responder;
    Tool* _tool = nullptr;
    std::optional<QPointF> _location; ///< the view's middle until it is first moved
    bool _isShown = false;
    bool _isDown = false;
    bool _isHeld = false; ///< the space bar
};

} // namespace pelmira
