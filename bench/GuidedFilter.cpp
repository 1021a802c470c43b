#include "GuidedFilter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

namespace pelmira::bench {
namespace {

using Plane = std::vector<double>;

/// The mean over a square, cut off at the image's rim.
Plane boxed(const Plane& plane, int width, int height, int radius)
{
    const auto across = static_cast<std::size_t>(width) + 1;
    Plane sums(across * (static_cast<std::size_t>(height) + 1));
    const auto at = [across](int x, int y) {
        return static_cast<std::size_t>(y) * across + static_cast<std::size_t>(x);
    };
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            sums[at(x + 1, y + 1)] = plane[static_cast<std::size_t>(y * width + x)] +
                                     sums[at(x, y + 1)] + sums[at(x + 1, y)] - sums[at(x, y)];
    Plane result(plane.size());
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const int x0 = std::max(x - radius, 0);
            const int x1 = std::min(x + radius + 1, width);
            const int y0 = std::max(y - radius, 0);
            const int y1 = std::min(y + radius + 1, height);
            result[static_cast<std::size_t>(y * width + x)] =
                (sums[at(x1, y1)] - sums[at(x0, y1)] - sums[at(x1, y0)] + sums[at(x0, y0)]) /
                ((x1 - x0) * (y1 - y0));
        }
    return result;
}

Plane product(const Plane& a, const Plane& b)
{
    Plane result(a.size());
    for (std::size_t i = 0; i < a.size(); ++i)
        result[i] = a[i] * b[i];
    return result;
}

QImage withAlpha(const QImage& image, const Plane& alpha)
{
    QImage result = image;
    auto* pixels = reinterpret_cast<std::uint32_t*>(result.bits());
    for (std::size_t i = 0; i < alpha.size(); ++i)
        pixels[i] = (pixels[i] & 0xFFFFFF) |
                    static_cast<std::uint32_t>(std::lround(std::clamp(alpha[i], 0.0, 1.0) * 255))
                        << 24;
    return result;
}

Plane channel(const QImage& image, int shift)
{
    const auto* pixels = reinterpret_cast<const std::uint32_t*>(image.constBits());
    Plane plane(static_cast<std::size_t>(image.width() * image.height()));
    for (std::size_t i = 0; i < plane.size(); ++i)
        plane[i] = (pixels[i] >> shift & 255) / 255.0;
    return plane;
}

} // namespace

QImage guidedFilter(const QImage& cutOut, int radius, double epsilon)
{
    const int width = cutOut.width();
    const int height = cutOut.height();
    const auto mean = [&](const Plane& plane) { return boxed(plane, width, height, radius); };
    const Plane p = channel(cutOut, 24);
    const std::array<Plane, 3> guide = {channel(cutOut, 16), channel(cutOut, 8),
                                        channel(cutOut, 0)};
    const Plane meanP = mean(p);
    std::array<Plane, 3> meanI;
    std::array<Plane, 3> covIP;
    for (std::size_t c = 0; c < 3; ++c) {
        meanI[c] = mean(guide[c]);
        covIP[c] = mean(product(guide[c], p));
    }
    std::array<std::array<Plane, 3>, 3> cov;
    for (std::size_t r = 0; r < 3; ++r)
        for (std::size_t c = r; c < 3; ++c)
            cov[r][c] = mean(product(guide[r], guide[c]));
    std::array<Plane, 3> slope = {Plane(p.size()), Plane(p.size()), Plane(p.size())};
    Plane offset(p.size());
    for (std::size_t i = 0; i < p.size(); ++i) {
        double m[3][4];
        for (std::size_t r = 0; r < 3; ++r) {
            for (std::size_t c = 0; c < 3; ++c)
                m[r][c] = cov[std::min(r, c)][std::max(r, c)][i] - meanI[r][i] * meanI[c][i] +
                          (r == c ? epsilon : 0);
            m[r][3] = covIP[r][i] - meanI[r][i] * meanP[i];
        }
        for (int k = 0; k < 3; ++k) // positive definite: no pivoting
            for (int r = 0; r < 3; ++r)
                if (r != k) {
                    const double f = m[r][k] / m[k][k];
                    for (int c = k; c < 4; ++c)
                        m[r][c] -= f * m[k][c];
                }
        offset[i] = meanP[i];
        for (std::size_t c = 0; c < 3; ++c) {
            slope[c][i] = m[c][3] / m[c][c];
            offset[i] -= slope[c][i] * meanI[c][i];
        }
    }
    Plane q = mean(offset);
    for (std::size_t c = 0; c < 3; ++c) {
        const Plane s = mean(slope[c]);
        for (std::size_t i = 0; i < q.size(); ++i)
            q[i] += s[i] * guide[c][i];
    }
    return withAlpha(cutOut, q);
}

QImage feathered(const QImage& cutOut, double sigma)
{
    const int width = cutOut.width();
    const int height = cutOut.height();
    Plane alpha = channel(cutOut, 24);
    const int reach = static_cast<int>(std::ceil(sigma * 3));
    for (const auto& [dx, dy] : {std::pair{1, 0}, {0, 1}}) {
        Plane other(alpha.size());
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) {
                double value = 0;
                double sum = 0;
                for (int i = -reach; i <= reach; ++i) {
                    const double tap = std::exp(-i * i / (2 * sigma * sigma));
                    value += tap * alpha[static_cast<std::size_t>(
                                       std::clamp(y + i * dy, 0, height - 1) * width +
                                       std::clamp(x + i * dx, 0, width - 1))];
                    sum += tap;
                }
                other[static_cast<std::size_t>(y * width + x)] = value / sum;
            }
        alpha = other;
    }
    return withAlpha(cutOut, alpha);
}

} // namespace pelmira::bench
