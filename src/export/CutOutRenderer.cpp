#include "export/CutOutRenderer.h"

#include "platform/base/RunInBackground.h"
#include "refine/RefineEdges.h"

#include <algorithm>
#include <utility>

namespace pelmira {
namespace {

constexpr int previewSide = 1280; // pixels

QImage previewOf(const QImage& image)
{
    if (std::max(image.width(), image.height()) <= previewSide)
        return image;
    return image.scaled(previewSide, previewSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

} // namespace

CutOutRenderer::~CutOutRenderer()
{
    _stop.request_stop();
}

void CutOutRenderer::render(SaveViewControllerDelegate& editor, bool hasCleanEdges,
                            Completion completion)
{
    _stop.request_stop();
    _stop = {};
    _isRendering = true;
    const std::stop_token stop = _stop.get_token();
    const auto rendered = [this, stop, completion = std::move(completion)](const QImage& image) {
        runInBackground(
            [stop, image] { return stop.stop_requested() ? QImage() : previewOf(image); },
            [this, stop, completion, image](const QImage& preview) {
                if (stop.stop_requested())
                    return;
                _isRendering = false;
                completion(image, preview);
            });
    };
    if (hasCleanEdges)
        editor.fullSizeImageRetouchedBy(
            [stop](const PixelSpan& pixels) { return refineEdges(pixels, stop); }, rendered);
    else
        editor.fullSizeImageWithCompletion(rendered);
}

} // namespace pelmira
