#include "mask_editor/screen/KeyboardAim.h"

#include "mask_editor/tools/Tool.h"

#include <algorithm>

namespace pelmira {
namespace {

// In points. A stroke begins after four, so one step under the space bar is a dab.
constexpr double shortStep = 5.0;
constexpr double longStep = 40.0;
constexpr double viewStep = 60.0;
constexpr double zoomStep = 1.1;
constexpr int identifier = -2; // no finger's, nor the mouse's

} // namespace

bool KeyboardAim::paints() const
{
    return _tool && _tool->paints();
}

// The view may have become smaller since.
QPointF KeyboardAim::location() const
{
    const QSizeF size = viewSize();
    const QPointF wanted = _location.value_or(QPointF(size.width(), size.height()) / 2.0);
    return {std::clamp(wanted.x(), 0.0, size.width()), std::clamp(wanted.y(), 0.0, size.height())};
}

bool KeyboardAim::keyPressed(int key, int modifiers, bool isAutoRepeat)
{
    const auto held = Qt::KeyboardModifiers(modifiers);
    switch (key) {
    case Qt::Key_Left:
        arrowPressed(-1, 0, held);
        return true;
    case Qt::Key_Right:
        arrowPressed(1, 0, held);
        return true;
    case Qt::Key_Up:
        arrowPressed(0, -1, held);
        return true;
    case Qt::Key_Down:
        arrowPressed(0, 1, held);
        return true;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        zoomBy(zoomStep);
        return true;
    case Qt::Key_Minus:
        zoomBy(1.0 / zoomStep);
        return true;
    case Qt::Key_Escape:
        leave();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!isAutoRepeat)
            press();
        return true;
    case Qt::Key_Space:
        // The photo wants to know too: under a held space bar the mouse moves it.
        if (!isAutoRepeat)
            hold();
        return false;
    default:
        return false;
    }
}

void KeyboardAim::keyReleased(int key, bool isAutoRepeat)
{
    if (key == Qt::Key_Space && !isAutoRepeat)
        release();
}

void KeyboardAim::arrowPressed(int x, int y, Qt::KeyboardModifiers modifiers)
{
    if (modifiers.testFlag(Qt::ControlModifier))
        moveView(x, y);
    else
        move(x, y, modifiers.testFlag(Qt::ShiftModifier));
}

void KeyboardAim::move(int x, int y, bool strides)
{
    if (paints() && _isHeld && !_isDown)
        begin();
    _location = location() + QPointF(x, y) * (strides ? longStep : shortStep);
    _location = location();
    if (_isDown)
        _responder.touchesMoved(touch());
    else
        show();
}

void KeyboardAim::show()
{
    _isShown = true;
    if (paints())
        _tool->showCursorAt(location());
    else
        begin();
}

void KeyboardAim::press()
{
    const bool lifts = _isDown || !paints();
    if (!_isDown)
        begin();
    if (lifts)
        end();
}

void KeyboardAim::hold()
{
    if (!_isDown)
        _isHeld = true;
}

void KeyboardAim::release()
{
    if (_isHeld && _isDown && paints())
        end();
    _isHeld = false;
}

void KeyboardAim::zoomBy(double factor)
{
    stepView({location(), {}, factor});
}

void KeyboardAim::moveView(int x, int y)
{
    stepView({location(), QPointF(x, y) * viewStep});
}

// The view doesn't move under a finger.
void KeyboardAim::stepView(const ViewStep& step)
{
    const bool wasShown = _isShown;
    leave();
    _responder.viewStepped(step);
    if (wasShown)
        show();
}

void KeyboardAim::leave()
{
    if (_isDown) {
        _isDown = false;
        _responder.touchesCancelled(touch());
    }
    if (_isShown && _tool)
        _tool->showCursorAt(std::nullopt);
    _isShown = _isHeld = false;
}

void KeyboardAim::begin()
{
    _isDown = _isShown = true;
    _responder.touchesBegan(touch());
}

void KeyboardAim::end()
{
    _isDown = _isShown = false;
    _responder.touchesEnded(touch(true));
}

TouchEvent KeyboardAim::touch(bool hasEnded) const
{
    return {{{identifier, location(), TouchKind::Keys, hasEnded}}};
}

} // namespace pelmira
