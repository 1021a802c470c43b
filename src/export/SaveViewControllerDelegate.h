#pragma once

#include "platform/pixels/PixelSpan.h"

#include <QImage>

#include <functional>

namespace pelmira {

/// What the save screen asks of the screen that opened it.
class SaveViewControllerDelegate {
public:
    virtual ~SaveViewControllerDelegate() = default;

    /// Gives the cut-out, premultiplied, at full size, to the completion, on the main thread at a
    /// later turn of the run loop; a null image if there is no memory for it.
    virtual void fullSizeImageWithCompletion(std::function<void(QImage)> completion) = 0;

    /// Changes a copy of the straight pixels in place, the photo's colours still under erased ones;
    /// false if it could not. Called off the main thread, and may outlive whoever asked.
    using Retouch = std::function<bool(const PixelSpan& pixels)>;

    /// The same image after it was retouched; null also where that failed.
    virtual void fullSizeImageRetouchedBy(Retouch retouch,
                                          std::function<void(QImage)> completion) = 0;
};

} // namespace pelmira
