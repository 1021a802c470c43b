#pragma once

#include <QImage>
#include <QVideoFrame>

namespace pelmira {

/// The frame upright, no larger than the bounds in pixels; null for a frame that can't be read.
/// Safe from any thread and without the GPU, which Qt's own conversion would use.
QImage imageFromVideoFrame(QVideoFrame frame, QSize bounds);

} // namespace pelmira
