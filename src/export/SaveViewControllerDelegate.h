#pragma once

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
};

} // namespace pelmira
