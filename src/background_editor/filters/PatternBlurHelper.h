#pragma once

#include "background_editor/filters/FilterContext.h"
#include "platform/base/OperationQueue.h"

#include <QImage>

#include <functional>
#include <memory>
#include <mutex>

namespace pelmira {

/// Blurs one picture, with another exposure and hue if wanted, off the main thread. Requests that
/// come while one is running replace each other, so a slider's drag never piles up work. Kept by a
/// shared pointer; called on the main thread.
class PatternBlurHelper : public std::enable_shared_from_this<PatternBlurHelper> {
public:
    /// The result, null without memory, and what was asked for. Called on the main thread.
    using Completion =
        std::function<void(const QImage& image, double blur, double light, double hue)>;

    /// An image in the bitmap form; with `wrapBlur` the blur goes round its edges, as in a tile.
    explicit PatternBlurHelper(
        const QImage& originalImage, bool wrapBlur = true,
        std::unique_ptr<FilterContext> context = std::make_unique<FilterContext>());
    ~PatternBlurHelper();

    const QImage& originalImage() const { return _originalImage; }
    bool isBlurWrapped() const { return _isBlurWrapped; }

    /// `blur` is a standard deviation in pixels; `light` 1 is four stops; `hue` 1 is a full turn.
    /// What was asked before and hasn't started is dropped, its completion never called; a run
    /// under way still delivers. Does nothing without an image or a completion.
    void doFilterWithBlur(double blur, double light, double hue, Completion completion);

    /// For good: nothing is delivered any more, also of a run under way.
    void cancel();

private:
    struct Blurred {
        QImage image; ///< before exposure and hue
        double blur = 0.0;
    };

    /// The picture blurred, as last delivered or anew. On the filter queue.
    QImage blurredImage(double blur);
    void deliver(const QImage& finalImage, const Blurred& blurred, double light, double hue,
                 const Completion& completion);

    const bool _isBlurWrapped;
    bool _isCancelled = false;
    const QImage _originalImage;
    OperationQueue _filterQueue;
    const std::unique_ptr<FilterContext> _ciContext;
    std::mutex _cacheLock; ///< written on the main thread, read by the run after
    Blurred _tmpBlurred;
};

} // namespace pelmira
