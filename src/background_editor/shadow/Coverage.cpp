#include "background_editor/shadow/Coverage.h"

#include "background_editor/filters/GaussianBlur.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <new>

namespace pelmira {

QImage blurredCoverage(const QImage& coverage, double deviation)
{
    if (!(deviation > 0.0))
        return coverage;
    QImage blurred(coverage.size(), QImage::Format_Alpha8);
    if (coverage.isNull() || blurred.isNull())
        return {};
    const auto width = static_cast<std::size_t>(coverage.width());
    const auto height = static_cast<std::size_t>(coverage.height());
    try {
        gaussianBlur(
            {coverage.constBits(), width, height,
             static_cast<std::size_t>(coverage.bytesPerLine())},
            {blurred.bits(), width, height, static_cast<std::size_t>(blurred.bytesPerLine())},
            deviation, Beyond::Transparent);
    } catch (const std::bad_alloc&) {
        return {};
    }
    return blurred;
}

QImage tinted(const QImage& coverage, const QColor& color)
{
    QImage image(coverage.size(), QImage::Format_ARGB32_Premultiplied);
    if (coverage.isNull() || image.isNull())
        return {};
    std::array<QRgb, 256> pixels;
    for (int covered = 0; covered < 256; ++covered) {
        const auto alpha = std::lround(color.alphaF() * static_cast<float>(covered));
        pixels[static_cast<std::size_t>(covered)] =
            qPremultiply(qRgba(color.red(), color.green(), color.blue(), static_cast<int>(alpha)));
    }
    for (int y = 0; y < image.height(); ++y) {
        const uchar* row = coverage.constScanLine(y);
        std::transform(row, row + image.width(), reinterpret_cast<QRgb*>(image.scanLine(y)),
                       [&pixels](uchar covered) { return pixels[covered]; });
    }
    return image;
}

} // namespace pelmira
