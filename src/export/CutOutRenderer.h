#pragma once

#include "export/SaveViewControllerDelegate.h"

#include <QImage>

#include <functional>
#include <stop_token>

namespace pelmira {

/// Gets the cut-out from the editor, as the mask has it or with clean edges, and makes its preview.
/// Nothing takes long on the main thread. One at a time: another request, or the renderer's end,
/// stops the one before, and nothing more is told of it. Main thread only.
class CutOutRenderer {
public:
    /// A null image if there was no memory.
    using Completion = std::function<void(const QImage& image, const QImage& preview)>;

    CutOutRenderer() = default;
    CutOutRenderer(const CutOutRenderer&) = delete;
    CutOutRenderer& operator=(const CutOutRenderer&) = delete;
    ~CutOutRenderer();

    void render(SaveViewControllerDelegate& editor, bool hasCleanEdges, Completion completion);
    /// What was asked for last has not been told yet.
    bool isRendering() const { return _isRendering; }

private:
    std::stop_source _stop;
    bool _isRendering = false;
};

} // namespace pelmira
