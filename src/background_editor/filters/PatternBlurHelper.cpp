#include "background_editor/filters/PatternBlurHelper.h"

#include "platform/base/Log.h"

#include <cmath>
#include <numbers>
#include <utility>

namespace pelmira {
namespace {

constexpr double sameBlur = 0.8; // pixels: a finer difference isn't worth another run
constexpr double stopsPerLight = 4.0;

} // namespace

PatternBlurHelper::PatternBlurHelper(const QImage& originalImage, bool wrapBlur,
                                     std::unique_ptr<FilterContext> context)
    : _isBlurWrapped(wrapBlur), _originalImage(originalImage),
      _filterQueue(globalQueue(QueuePriority::UserInitiated)), _ciContext(std::move(context))
{
}

PatternBlurHelper::~PatternBlurHelper()
{
    logLine("PatternBlurHelper dealloc");
}

void PatternBlurHelper::doFilterWithBlur(double blur, double light, double hue,
                                         Completion completion)
{
    if (_originalImage.isNull() || !completion)
        return;
    if (blur == 0.0) { // nothing to blur: what comes next finds it done
        const std::lock_guard lock(_cacheLock);
        _tmpBlurred = {_originalImage, 0.0};
    }
    _filterQueue.cancelAllOperations();
    _filterQueue.addOperation([weakSelf = weak_from_this(), blur, light, hue,
                               completion = std::move(completion)]() mutable {
        auto self = weakSelf.lock();
        if (!self)
            return;
        const QImage blurred = self->blurredImage(blur);
        const QImage finalImage =
            light == 0.0 && hue == 0.0
                ? blurred
                : self->_ciContext->adjustedImage(blurred, light * stopsPerLight,
                                                  hue * 2.0 * std::numbers::pi);
        // Handed over, so that neither ends its life on this thread.
        mainQueue().async([self = std::move(self), finalImage, blurred, blur, light, hue,
                           completion = std::move(completion)] {
            self->deliver(finalImage, {blurred, blur}, light, hue, completion);
        });
    });
}

void PatternBlurHelper::cancel()
{
    _filterQueue.cancelAllOperations();
    _isCancelled = true;
}

QImage PatternBlurHelper::blurredImage(double blur)
{
    {
        const std::lock_guard lock(_cacheLock);
        if (std::abs(_tmpBlurred.blur - blur) < sameBlur && !_tmpBlurred.image.isNull())
            return _tmpBlurred.image;
    }
    return _ciContext->blurredImage(_originalImage, blur, _isBlurWrapped);
}

void PatternBlurHelper::deliver(const QImage& finalImage, const Blurred& blurred, double light,
                                double hue, const Completion& completion)
{
    if (_isCancelled)
        return;
    completion(finalImage, blurred.blur, light, hue);
    const std::lock_guard lock(_cacheLock);
    _tmpBlurred = blurred;
}

} // namespace pelmira
