#pragma once

#include <QPoint>
#include <cstdint>
#include <string>
#include <vector>

namespace pelmira::bench {

/// An opaque image made by rule, alike at every size, with places worth a tap.
struct Scene {
    std::string name;
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::vector<std::uint32_t> pixels; // B, G, R, A, rows tightly packed
    std::vector<QPoint> starts;
};

/// Sky over hills, a studio shot, foliage, and a smooth picture after coarse compression:
/// gradients, texture and grain as photographs have them.
std::vector<Scene> photoScenes(double megapixels);

/// One corridor, a pixel wide, that winds through the whole image row by row or column by column:
/// the worst cases of a fill.
std::vector<Scene> mazes(double megapixels);

} // namespace pelmira::bench
