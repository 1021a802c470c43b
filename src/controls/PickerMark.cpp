#include "controls/PickerMark.h"

#include <limits>

namespace pelmira {

QPointF PickerMark::afterKey(QPointF place, int key, bool strides)
{
    const double stride = strides ? 0.1 : 0.01;
    switch (key) {
    case Qt::Key_Left:
        return place - QPointF(stride, 0.0);
    case Qt::Key_Right:
        return place + QPointF(stride, 0.0);
    case Qt::Key_Up:
        return place - QPointF(0.0, stride);
    case Qt::Key_Down:
        return place + QPointF(0.0, stride);
    default:
        constexpr double none = std::numeric_limits<double>::quiet_NaN();
        return {none, none};
    }
}

} // namespace pelmira
