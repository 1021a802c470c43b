#include "mask_editor/screen/ToolTip.h"

namespace pelmira {
namespace {

constexpr double secondsShown = 1.0;
constexpr double horizontalPadding = 10.0;
constexpr double verticalPadding = 2.0;
constexpr double gapToBottomBar = 8.0;

} // namespace

void ToolTip::showToolTipWithTitle(const QString& title)
{
    _text = title;
    _alpha = 1.0;
    Q_EMIT changed();
    _toolTipTimer = Timer::scheduled(secondsShown, [this] { hideToolTip(); });
}

void ToolTip::hideToolTip()
{
    _toolTipTimer.invalidate();
    _alpha = 0.0;
    Q_EMIT changed();
}

QRectF ToolTip::frame() const
{
    const double width = _fittedSize.width() + 2 * horizontalPadding;
    const double height = _fittedSize.height() + 2 * verticalPadding;
    return {(_viewWidth - width) * 0.5, _bottomBarTop - height - gapToBottomBar, width, height};
}

void ToolTip::setFittedSize(QSizeF size)
{
    _fittedSize = size;
    Q_EMIT frameChanged();
}

void ToolTip::setSurroundings(double viewWidth, double bottomBarTop)
{
    _viewWidth = viewWidth;
    _bottomBarTop = bottomBarTop;
    Q_EMIT frameChanged();
}

} // namespace pelmira
