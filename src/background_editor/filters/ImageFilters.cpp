#include "background_editor/filters/ImageFilters.h"

#include "background_editor/filters/GaussianBlur.h"
#include "platform/image/Image.h"

#include <QColorSpace>
#include <QRgb>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <new>

namespace pelmira {
namespace {

constexpr auto bitmapFormat = QImage::Format_ARGB32_Premultiplied;

/// One function of a pixel's colour over the whole image.
template <typename Function>
QImage mapped(const QImage& image, Function function)
{
    QImage result = bitmapPixels(image);
    for (int y = 0; y < result.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(result.scanLine(y));
        if (!row) // no memory for a copy of its own
            return {};
        std::transform(row, row + result.width(), row, function);
    }
    return result;
}

double linearLight(double component)
{
    return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

double storedComponent(double light)
{
    return light <= 0.0031308 ? light * 12.92 : 1.055 * std::pow(light, 1.0 / 2.4) - 0.055;
}

} // namespace

QImage gaussianBlurred(const QImage& image, double inputRadius, Beyond beyond)
{
    if (!(inputRadius > 0.0))
        return image;
    const QImage source = bitmapPixels(image);
    QImage result(source.size(), bitmapFormat);
    if (source.isNull() || result.isNull())
        return {};
    const auto width = static_cast<std::size_t>(source.width());
    const auto height = static_cast<std::size_t>(source.height());
    try {
        gaussianBlur(
            {source.constBits(), width, height, static_cast<std::size_t>(source.bytesPerLine()), 4},
            {result.bits(), width, height, static_cast<std::size_t>(result.bytesPerLine()), 4},
            inputRadius, beyond);
    } catch (const std::bad_alloc&) {
        return {};
    }
    result.setColorSpace(source.colorSpace());
    return result;
}

QImage exposureAdjusted(const QImage& image, double inputEV)
{
    if (inputEV == 0.0 || std::isnan(inputEV))
        return image;
    std::array<std::uint8_t, 256> exposed;
    const double factor = std::exp2(inputEV);
    for (std::size_t i = 0; i < exposed.size(); ++i) {
        const double light = linearLight(static_cast<double>(i) / 255.0) * factor;
        exposed[i] =
            static_cast<std::uint8_t>(std::lround(255.0 * storedComponent(std::min(light, 1.0))));
    }
    exposed[0] = 0; // also for an endless factor
    return mapped(image, [&exposed](QRgb pixel) {
        const QRgb color = qUnpremultiply(pixel);
        const auto component = [&](int value) { return int(exposed[std::size_t(value)]); };
        return qPremultiply(qRgba(component(qRed(color)), component(qGreen(color)),
                                  component(qBlue(color)), qAlpha(color)));
    });
}

QImage hueAdjusted(const QImage& image, double inputAngle)
{
    if (inputAngle == 0.0 || !std::isfinite(inputAngle))
        return image;
    const auto c = static_cast<float>(std::cos(inputAngle));
    const auto s = static_cast<float>(std::sin(inputAngle));
    const float matrix[3][3] = {{0.213F + 0.787F * c - 0.213F * s, 0.715F - 0.715F * c - 0.715F * s,
                                 0.072F - 0.072F * c + 0.928F * s},
                                {0.213F - 0.213F * c + 0.143F * s, 0.715F + 0.285F * c + 0.140F * s,
                                 0.072F - 0.072F * c - 0.283F * s},
                                {0.213F - 0.213F * c - 0.787F * s, 0.715F - 0.715F * c + 0.715F * s,
                                 0.072F + 0.928F * c + 0.072F * s}};
    // A matrix does the same to premultiplied colour, of which no component exceeds alpha.
    return mapped(image, [&matrix](QRgb pixel) {
        const auto red = static_cast<float>(qRed(pixel));
        const auto green = static_cast<float>(qGreen(pixel));
        const auto blue = static_cast<float>(qBlue(pixel));
        const auto component = [&](const float(&row)[3]) {
            const float value = row[0] * red + row[1] * green + row[2] * blue;
            return std::clamp(static_cast<int>(std::lround(value)), 0, qAlpha(pixel));
        };
        return qRgba(component(matrix[0]), component(matrix[1]), component(matrix[2]),
                     qAlpha(pixel));
    });
}

} // namespace pelmira
