#include "platform/encode/YCbCrPlanes.h"

#include "platform/encode/UnseenColors.h"

#include <algorithm>

namespace pelmira {
namespace {

// The matrix in parts of 65536, rounded so that each row's sum is exact.
constexpr int one = 1 << 16;
constexpr int half = one / 2;

int luma(int red, int green, int blue)
{
    return (19595 * red + 38470 * green + 7471 * blue + half) / one;
}
int blueDifference(int red, int green, int blue)
{
    return (-11059 * red - 21709 * green + 32768 * blue + 128 * one + half) / one;
}
int redDifference(int red, int green, int blue)
{
    return (32768 * red - 27439 * green - 5329 * blue + 128 * one + half) / one;
}
std::uint8_t byte(int value)
{
    return static_cast<std::uint8_t>(std::clamp(value, 0, 255));
}

} // namespace

void splitIntoPlanes(const QImage& bitmap, const YCbCrPlanes& planes)
{
    const UnseenColors unseen(bitmap);
    const int width = bitmap.width();
    const int height = bitmap.height();
    const auto straight = [&](int x, int y) {
        const QRgb pixel = reinterpret_cast<const QRgb*>(bitmap.constScanLine(y))[x];
        return qAlpha(pixel) == 0 ? unseen.at(x, y) : qUnpremultiply(pixel);
    };
    for (int top = 0; top < height; top += 2) {
        std::uint8_t* cb = planes.cb.values + top / 2 * planes.cb.stride;
        std::uint8_t* cr = planes.cr.values + top / 2 * planes.cr.stride;
        for (int left = 0; left < width; left += 2) {
            int red = 0;
            int green = 0;
            int blue = 0;
            int weights = 0;
            // At an odd edge the last row or column counts twice.
            for (int i = 0; i < 4; ++i) {
                const int x = std::min(left + i % 2, width - 1);
                const int y = std::min(top + i / 2, height - 1);
                const QRgb color = straight(x, y);
                const int alpha = qAlpha(reinterpret_cast<const QRgb*>(bitmap.constScanLine(y))[x]);
                const int weight = std::max(alpha, 1);
                red += qRed(color) * weight;
                green += qGreen(color) * weight;
                blue += qBlue(color) * weight;
                weights += weight;
                planes.y.values[y * planes.y.stride + x] =
                    byte(luma(qRed(color), qGreen(color), qBlue(color)));
                planes.alpha.values[y * planes.alpha.stride + x] = static_cast<std::uint8_t>(alpha);
            }
            red = (red + weights / 2) / weights;
            green = (green + weights / 2) / weights;
            blue = (blue + weights / 2) / weights;
            *cb++ = byte(blueDifference(red, green, blue));
            *cr++ = byte(redDifference(red, green, blue));
        }
    }
}

} // namespace pelmira
