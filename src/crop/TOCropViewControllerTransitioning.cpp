#include "crop/TOCropViewControllerTransitioning.h"

#include "crop/CropMotion.h"

#include <utility>

namespace pelmira {

void TOCropViewControllerTransitioning::start(Tool tool, const QImage& image, const QRectF& from,
                                              const QRectF& to, double now,
                                              std::function<void()> completion)
{
    finish();
    _tool = tool;
    _image = image;
    _from = from;
    _to = to;
    _start = now;
    _isRunning = true;
    _completion = std::move(completion);
    Q_EMIT imageChanged();
    show(0.0);
}

void TOCropViewControllerTransitioning::advance(double now)
{
    if (!_isRunning)
        return;
    const double part = springProgress(now - _start, 0.0);
    show(part);
    if (part >= 1.0)
        finish();
}

void TOCropViewControllerTransitioning::finish()
{
    if (!std::exchange(_isRunning, false))
        return;
    _image = {};
    Q_EMIT imageChanged();
    Q_EMIT changed();
    if (const auto completion = std::exchange(_completion, nullptr))
        completion();
}

void TOCropViewControllerTransitioning::showTool()
{
    if (_isRunning)
        return;
    _toolAlpha = 1.0;
    Q_EMIT changed();
}

void TOCropViewControllerTransitioning::show(double part)
{
    const auto mix = [part](double a, double b) { return a + (b - a) * part; };
    _frame = {mix(_from.x(), _to.x()), mix(_from.y(), _to.y()), mix(_from.width(), _to.width()),
              mix(_from.height(), _to.height())};
    _toolAlpha = _tool == Tool::FadesIn ? part : 1.0 - part;
    Q_EMIT changed();
}

} // namespace pelmira
