#pragma once

#include <QImage>

namespace pelmira::bench {

/// What others do for a hard mask: the mask filtered with the photo's colours as the guide (He,
/// Sun, Tang 2010), its radius in pixels. The colours stay.
QImage guidedFilter(const QImage& cutOut, int radius, double epsilon);

/// A Gaussian over the mask.
QImage feathered(const QImage& cutOut, double sigma);

} // namespace pelmira::bench
