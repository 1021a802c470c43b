#include "platform/pixels/PremultipliedAlpha.h"

namespace pelmira {
namespace {

/// (component × alpha + 127) / 255 without a division; exact for all pairs of bytes.
std::uint32_t multiplied(std::uint32_t component, std::uint32_t alpha)
{
    const std::uint32_t product = component * alpha + 128;
    return (product + (product >> 8)) >> 8;
}

/// min(255, (component × 255 + alpha / 2) / alpha). Single precision holds the sum exactly, and up
/// to the limit of 255 a quotient lies further below the next whole number than it can be rounded.
std::uint32_t divided(std::uint32_t component, std::uint32_t alpha)
{
    const auto sum = static_cast<float>(static_cast<std::int32_t>(component * 255 + alpha / 2));
    // Alpha 0 gives a finite number here and is dealt with by the caller: no branch in the loop.
    const auto divisor = static_cast<float>(static_cast<std::int32_t>(alpha | (alpha == 0)));
    const float quotient = sum / divisor;
    return static_cast<std::uint32_t>(
        static_cast<std::int32_t>(quotient < 255.0F ? quotient : 255.0F));
}

void unpremultiplyRow(std::uint32_t* pixels, std::uint32_t width)
{
    for (std::uint32_t x = 0; x < width; ++x) {
        const std::uint32_t pixel = pixels[x];
        const std::uint32_t alpha = pixel >> 24;
        const std::uint32_t straight = divided(pixel & 0xFF, alpha) |
                                       (divided((pixel >> 8) & 0xFF, alpha) << 8) |
                                       (divided((pixel >> 16) & 0xFF, alpha) << 16);
        const std::uint32_t isVisible = alpha == 0 ? 0U : ~0U;
        pixels[x] = (straight & isVisible) | (alpha << 24);
    }
}

bool isOpaqueRow(const std::uint32_t* pixels, std::uint32_t width)
{
    std::uint32_t all = ~0U;
    for (std::uint32_t x = 0; x < width; ++x)
        all &= pixels[x];
    return all >> 24 == 255;
}

void premultiplyRow(const std::uint32_t* source, std::uint32_t* destination, std::uint32_t width)
{
    for (std::uint32_t x = 0; x < width; ++x) {
        const std::uint32_t pixel = source[x];
        const std::uint32_t alpha = pixel >> 24;
        destination[x] = multiplied(pixel & 0xFF, alpha) |
                         (multiplied((pixel >> 8) & 0xFF, alpha) << 8) |
                         (multiplied((pixel >> 16) & 0xFF, alpha) << 16) | (alpha << 24);
    }
}

} // namespace

void unpremultiply(const PixelSpan& pixels)
{
    // Where nothing shows through, both are the same: so for nearly every photo.
    for (std::uint32_t y = 0; y < pixels.height; ++y)
        if (!isOpaqueRow(pixels.row(y), pixels.width))
            unpremultiplyRow(pixels.row(y), pixels.width);
}

void premultiply(const PixelSpan& source, const PixelSpan& destination)
{
    for (std::uint32_t y = 0; y < source.height; ++y)
        premultiplyRow(source.row(y), destination.row(y), source.width);
}

} // namespace pelmira
