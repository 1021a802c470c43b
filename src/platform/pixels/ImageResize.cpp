#include "platform/pixels/ImageResize.h"

#include <algorithm>
#include <cmath>

namespace pelmira {

QImage resizedImageWithContentMode(const QImage& image, QSizeF bounds)
{
    if (image.isNull())
        return {};
    const double scale = std::min(bounds.width() / image.width(), bounds.height() / image.height());
    const auto side = [scale](int length) {
        return std::max(1, static_cast<int>(std::lround(length * scale)));
    };
    return image.scaled(side(image.width()), side(image.height()), Qt::IgnoreAspectRatio,
                        Qt::SmoothTransformation);
}

} // namespace pelmira
