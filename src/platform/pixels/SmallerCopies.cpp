#include "platform/pixels/SmallerCopies.h"

#include "platform/pixels/BitmapContext.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <new>

namespace pelmira {
namespace {

constexpr std::size_t components = 4;

/// What one pixel of the half is made of. An odd length 2n + 1 has 2 + 1/n pixels for each of n:
/// the one between two of them is shared.
struct Taps {
    std::array<std::uint32_t, 3> at;
    std::array<float, 3> weight;
};

Taps tapsOf(std::uint32_t length, std::uint32_t i)
{
    if (length == 1)
        return {{0, 0, 0}, {1.0F, 0.0F, 0.0F}};
    if (length % 2 == 0)
        return {{2 * i, 2 * i + 1, 2 * i + 1}, {0.5F, 0.5F, 0.0F}};
    const std::uint32_t half = length / 2;
    const float share = 1.0F / float(length);
    return {{2 * i, 2 * i + 1, 2 * i + 2},
            {float(half - i) * share, float(half) * share, float(i + 1) * share}};
}

const std::uint8_t* bytesOfRow(const PixelSpan& span, std::uint32_t y)
{
    return reinterpret_cast<const std::uint8_t*>(span.row(y));
}

void mixRows(const PixelSpan& source, const Taps& rows, float* mixed)
{
    const std::uint8_t* const a = bytesOfRow(source, rows.at[0]);
    const std::uint8_t* const b = bytesOfRow(source, rows.at[1]);
    const std::uint8_t* const c = bytesOfRow(source, rows.at[2]);
    const auto [wa, wb, wc] = rows.weight;
    const std::size_t count = source.width * components;
    if (wc == 0.0F)
        for (std::size_t i = 0; i < count; ++i)
            mixed[i] = float(a[i]) * wa + float(b[i]) * wb;
    else
        for (std::size_t i = 0; i < count; ++i)
            mixed[i] = float(a[i]) * wa + float(b[i]) * wb + float(c[i]) * wc;
}

void mixColumns(const float* mixed, std::uint32_t width, std::uint8_t* result)
{
    const std::uint32_t half = std::max(1U, width / 2);
    const auto mix = [&](std::uint32_t x, const Taps& columns) {
        const auto [wa, wb, wc] = columns.weight;
        const float* const a = mixed + columns.at[0] * components;
        const float* const b = mixed + columns.at[1] * components;
        const float* const c = mixed + columns.at[2] * components;
        for (std::size_t i = 0; i < components; ++i)
            result[x * components + i] =
                static_cast<std::uint8_t>(a[i] * wa + b[i] * wb + c[i] * wc + 0.5F);
    };
    if (width % 2 == 1)
        for (std::uint32_t x = 0; x < half; ++x)
            mix(x, tapsOf(width, x));
    else // with the weights known the compiler takes many at once
        for (std::uint32_t x = 0; x < half; ++x)
            mix(x, {{2 * x, 2 * x + 1, 2 * x + 1}, {0.5F, 0.5F, 0.0F}});
}

PixelSpan spanToRead(const QImage& image)
{
    return {reinterpret_cast<std::uint32_t*>(const_cast<uchar*>(image.constBits())),
            static_cast<std::uint32_t>(image.width()), static_cast<std::uint32_t>(image.height()),
            static_cast<std::uint32_t>(image.bytesPerLine())};
}

} // namespace

bool halve(const PixelSpan& source, const PixelSpan& result)
{
    const std::unique_ptr<float[]> mixed(new (std::nothrow) float[source.width * components]);
    if (!mixed)
        return false;
    for (std::uint32_t y = 0; y < result.height; ++y) {
        mixRows(source, tapsOf(source.height, y), mixed.get());
        mixColumns(mixed.get(), source.width, reinterpret_cast<std::uint8_t*>(result.row(y)));
    }
    return true;
}

std::vector<QImage> smallerCopies(const QImage& image)
{
    std::vector<QImage> copies;
    QImage larger = image;
    while (larger.width() > 1 || larger.height() > 1) {
        QImage half(std::max(1, larger.width() / 2), std::max(1, larger.height() / 2),
                    image.format());
        if (half.isNull() || !halve(spanToRead(larger), imageSpan(half)))
            return {};
        copies.push_back(half);
        larger = half;
    }
    return copies;
}

} // namespace pelmira
