#pragma once

#include "platform/PhotoLibrary.h"

#include <QImage>
#include <QString>

#include <functional>

namespace pelmira {

/// Writes cut-outs into the photo library as transparent PNGs, off the main thread.
class CutOutSaver {
public:
    using Completion = std::function<void(const QString& line)>;

    explicit CutOutSaver(PhotoLibrary library) : _library(std::move(library)) {}

    /// Calls the completion on the main thread with one line for the user: where the picture lies,
    /// or why it could not be written.
    void save(QImage cutOut, Completion completion) const;

private:
    PhotoLibrary _library;
};

} // namespace pelmira
