#include "controls/ZKLSlider.h"

#include <algorithm>
#include <cmath>

namespace pelmira {

void ZKLSlider::setValue(float value)
{
    // In this order a value that is no number ends at the minimum.
    const float inRange = std::min(std::max(_minimumValue, value), _maximumValue);
    if (inRange == _value)
        return;
    _value = inRange;
    Q_EMIT valueChanged();
}

void ZKLSlider::setRange(float minimumValue, float maximumValue)
{
    _minimumValue = minimumValue;
    _maximumValue = std::max(minimumValue, maximumValue);
    Q_EMIT rangeChanged();
    setValue(_value);
}

void ZKLSlider::moveTo(double value)
{
    setValue(static_cast<float>(value));
    Q_EMIT moved();
}

void ZKLSlider::dragTo(double value)
{
    constexpr float shareThatSnaps = 0.03F; // of the range, to each side
    setValue(static_cast<float>(value));
    const float middle = (_minimumValue + _maximumValue) / 2.0F;
    const float reach = (_maximumValue - _minimumValue) * shareThatSnaps;
    if (snapsToMiddle && std::abs(_value - middle) < reach)
        setValue(middle);
    Q_EMIT moved();
}

bool ZKLSlider::keyPressed(int key)
{
    const double page = (double(_maximumValue) - _minimumValue) / 10.0;
    switch (key) {
    case Qt::Key_PageDown:
        moveTo(_value - page);
        return true;
    case Qt::Key_PageUp:
        moveTo(_value + page);
        return true;
    case Qt::Key_Home:
        moveTo(_minimumValue);
        return true;
    case Qt::Key_End:
        moveTo(_maximumValue);
        return true;
    default:
        return false;
    }
}

} // namespace pelmira
