#include "EdgeUser.h"

#include "mask_editor/wand/FloodFillSession.h"

#include <QPointF>

#include <algorithm>
#include <array>

namespace pelmira::bench {
namespace {

constexpr int mostTaps = 12;
constexpr int deepest = 40;
constexpr std::array<std::uint8_t, 14> dial = {5,  9,  13, 18, 24, 30,  38,
                                               46, 54, 64, 76, 90, 110, 140};

std::uint32_t* pixelsOf(QImage& image)
{
    return reinterpret_cast<std::uint32_t*>(image.bits());
}

/// What is wrong with the mask: subject that is gone counts twice.
double fault(const std::uint32_t* pixels, const Photograph& photograph)
{
    double sum = 0;
    for (std::size_t i = 0; i < photograph.truth.size() / 4; ++i) {
        const double alpha = photograph.truth[i * 4 + 3] / 255.0;
        sum += pixels[i] >> 24 ? 1 - alpha : 2 * alpha;
    }
    return sum;
}

} // namespace

std::vector<int> depthWithin(const std::vector<bool>& set, int width, int height, int most)
{
    std::vector<int> depth(set.size());
    for (std::size_t i = 0; i < set.size(); ++i)
        depth[i] = set[i] ? most : 0;
    const auto relax = [&](int x, int y, int dx, int dy) {
        const int nx = x + dx;
        const int ny = y + dy;
        if (nx < 0 || ny < 0 || nx >= width || ny >= height)
            return;
        int& here = depth[static_cast<std::size_t>(y * width + x)];
        here = std::min(here, depth[static_cast<std::size_t>(ny * width + nx)] + 1);
    };
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            for (const auto& [dx, dy] : {std::pair{-1, 0}, {-1, -1}, {0, -1}, {1, -1}})
                relax(x, y, dx, dy);
    for (int y = height - 1; y >= 0; --y)
        for (int x = width - 1; x >= 0; --x)
            for (const auto& [dx, dy] : {std::pair{1, 0}, {1, 1}, {0, 1}, {-1, 1}})
                relax(x, y, dx, dy);
    return depth;
}

QImage cutWithWand(const Photograph& photograph)
{
    QImage image = photograph.photo;
    const int width = image.width();
    const int height = image.height();
    std::uint32_t* pixels = pixelsOf(image);
    std::vector<bool> isTried(static_cast<std::size_t>(width * height));
    double best = fault(pixels, photograph);
    for (int tap = 0; tap < mostTaps; ++tap) {
        std::vector<bool> isLeft(isTried.size());
        for (std::size_t i = 0; i < isLeft.size(); ++i)
            isLeft[i] = pixels[i] >> 24 && photograph.truth[i * 4 + 3] < 32 && !isTried[i];
        const std::vector<int> depth = depthWithin(isLeft, width, height, deepest);
        const auto deep = std::max_element(depth.begin(), depth.end());
        if (*deep < 3)
            break;
        const auto place = static_cast<int>(deep - depth.begin());
        const QPointF point(place % width, place / width);
        FloodFillSession session(pixels, static_cast<std::uint32_t>(width),
                                 static_cast<std::uint32_t>(height),
                                 static_cast<std::uint32_t>(width * 4), point);
        std::uint8_t chosen = 0;
        for (const std::uint8_t tolerance : dial) {
            session.setTolerance(tolerance);
            if (const double now = fault(pixels, photograph); now < best) {
                best = now;
                chosen = tolerance;
            }
        }
        session.setTolerance(chosen);
        for (int y = std::max(0, place / width - 4); y < std::min(height, place / width + 5); ++y)
            for (int x = std::max(0, place % width - 4); x < std::min(width, place % width + 5);
                 ++x)
                isTried[static_cast<std::size_t>(y * width + x)] = true;
    }
    return image;
}

} // namespace pelmira::bench
