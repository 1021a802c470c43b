#include "controls/ScrollRange.h"

#include <algorithm>
#include <limits>

namespace pelmira {
namespace {

constexpr double margin = 24.0;     // points beside what is revealed
constexpr double lines = 60.0;      // points that an arrow key goes
constexpr double shareOfView = 0.9; // that a page key goes

} // namespace

double ScrollRange::within(double offset) const
{
    return std::max(0.0, std::min(content - view, offset));
}

double ScrollRange::revealing(double offset, double start, double length) const
{
    return within(std::min(std::max(offset, start + length + margin - view), start - margin));
}

double ScrollRange::turned(double offset, QPointF angle) const
{
    return within(offset - (angle.x() != 0.0 ? angle.x() : angle.y()));
}

double ScrollRange::afterKey(double offset, int key) const
{
    switch (key) {
    case Qt::Key_Up:
        return within(offset - lines);
    case Qt::Key_Down:
        return within(offset + lines);
    case Qt::Key_PageUp:
        return within(offset - shareOfView * view);
    case Qt::Key_PageDown:
    case Qt::Key_Space:
        return within(offset + shareOfView * view);
    case Qt::Key_Home:
        return 0.0;
    case Qt::Key_End:
        return within(content);
    default:
        return std::numeric_limits<double>::quiet_NaN();
    }
}

} // namespace pelmira
