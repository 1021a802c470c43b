#include "mask_editor/screen/ToolBars.h"

namespace pelmira {
namespace {

constexpr double dialHeight = 32.0;

} // namespace

QRectF ToolBars::frameForDialAtIndex(int index) const
{
    const double area = heightForEachDialArea();
    return {0.0, area + (area * index + _wandButtonMaxY) - dialHeight, _bottomBarWidth, dialHeight};
}

} // namespace pelmira
