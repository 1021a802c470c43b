#include "Scenes.h"

#include "Noise.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace pelmira::bench {
namespace {

struct Rgb {
    double r = 0;
    double g = 0;
    double b = 0;
};

std::uint32_t packed(Rgb color)
{
    const auto byte = [](double v) {
        return static_cast<std::uint32_t>(std::clamp(v + 0.5, 0.0, 255.0));
    };
    return 0xFF000000U | byte(color.r) << 16 | byte(color.g) << 8 | byte(color.b);
}

Rgb with(Rgb color, double add)
{
    return {color.r + add, color.g + add, color.b + add};
}

/// `paint` takes u and v from 0 to 1 across the image and the pixel's own coordinates.
Scene painted(const char* name, double megapixels,
              const std::function<Rgb(double, double, std::uint32_t, std::uint32_t)>& paint,
              const std::vector<std::pair<double, double>>& starts)
{
    Scene scene;
    scene.name = name;
    scene.width = static_cast<std::uint32_t>(std::lround(std::sqrt(megapixels * 1e6 * 4 / 3)));
    scene.height = static_cast<std::uint32_t>(std::lround(scene.width * 0.75));
    scene.pixels.reserve(std::size_t{scene.width} * scene.height);
    for (std::uint32_t y = 0; y < scene.height; ++y)
        for (std::uint32_t x = 0; x < scene.width; ++x)
            scene.pixels.push_back(
                packed(paint(double(x) / scene.width, double(y) / scene.height, x, y)));
    for (const auto& [u, v] : starts)
        scene.starts.emplace_back(static_cast<int>(u * scene.width),
                                  static_cast<int>(v * scene.height));
    return scene;
}

Rgb sky(double u, double v, std::uint32_t x, std::uint32_t y)
{
    const double cloud = std::max(0.0, octaves(u * 5, v * 8, 5, 11) - 0.5) * 2;
    Rgb color{70 + 90 * v, 120 + 80 * v, 205 + 30 * v};
    color = {std::lerp(color.r, 240.0, cloud), std::lerp(color.g, 240.0, cloud),
             std::lerp(color.b, 245.0, cloud)};
    const double ridge = 0.72 + 0.12 * octaves(u * 4, 0.5, 4, 21);
    if (v > ridge) {
        const double leaf = octaves(u * 160, v * 120, 4, 31);
        color = {30 + 60 * leaf, 40 + 80 * leaf, 25 + 40 * leaf};
    }
    return with(color, 2.0 * grain(x, y, 41));
}

Rgb studio(double u, double v, std::uint32_t x, std::uint32_t y)
{
    const double du = u - 0.5;
    const double dv = v - 0.5;
    const double vignette = 40 * (du * du + dv * dv);
    Rgb color{232 - vignette, 230 - vignette, 226 - vignette};
    const double inside = du * du / 0.05 + dv * dv / 0.09 + 0.1 * octaves(u * 6, v * 6, 3, 12);
    if (inside < 1) {
        const double weave = octaves(u * 90, v * 70, 4, 22);
        const double light = 1.2 - inside * 0.7;
        color = {(150 + 70 * weave) * light, (70 + 50 * weave) * light, (50 + 40 * weave) * light};
    } else if (inside < 1.25 && dv > 0) {
        color = with(color, -60 * (1.25 - inside) / 0.25);
    }
    return with(color, 1.5 * grain(x, y, 42));
}

Rgb foliage(double u, double v, std::uint32_t x, std::uint32_t y)
{
    const double leaf = octaves(u * 60, v * 45, 6, 13);
    const double shade = octaves(u * 7, v * 5, 3, 23);
    const double light = 0.35 + 1.1 * shade;
    return with({(40 + 130 * leaf) * light, (70 + 160 * leaf) * light, (20 + 80 * leaf) * light},
                4.0 * grain(x, y, 43));
}

Rgb jpegGrain(double u, double v, std::uint32_t x, std::uint32_t y)
{
    const double wall = 150 + 60 * octaves(u * 3, v * 2, 3, 14) - 40 * v;
    // What coarse quantisation leaves: a level and a ripple for each block of 8 by 8.
    const double level = 3 * grain(x / 8, y / 8, 24);
    const double ripple = 2.5 * grain(x / 8, y / 8, 34) * ((x & 4) ? 1 : -1) * ((y & 2) ? 1 : -1);
    const bool isFrame = std::fabs(std::fmod(u * 4, 1.0) - 0.5) < 0.03 ||
                         std::fabs(std::fmod(v * 3, 1.0) - 0.5) < 0.04;
    const double base = isFrame ? wall * 0.45 : wall;
    return with({base * 1.02, base, base * 0.93}, level + ripple + 1.5 * grain(x, y, 44));
}

} // namespace

std::vector<Scene> photoScenes(double megapixels)
{
    return {
        painted("sky", megapixels, sky, {{0.3, 0.1}, {0.8, 0.5}, {0.5, 0.95}}),
        painted("studio", megapixels, studio, {{0.05, 0.05}, {0.5, 0.5}, {0.5, 0.8}}),
        painted("foliage", megapixels, foliage, {{0.5, 0.5}, {0.2, 0.7}, {0.9, 0.1}}),
        painted("jpeg", megapixels, jpegGrain, {{0.25, 0.3}, {0.02, 0.98}, {0.6, 0.6}}),
    };
}

std::vector<Scene> mazes(double megapixels)
{
    // Along lines with even numbers, and from one to the next at alternate ends.
    const auto corridor = [](std::uint32_t line, bool isAtStart, bool isAtEnd) {
        const bool isOpen = line % 2 == 0 || ((line & 2) ? isAtStart : isAtEnd);
        return isOpen ? Rgb{200, 200, 200} : Rgb{20, 20, 20};
    };
    const auto columns = static_cast<std::uint32_t>(std::lround(std::sqrt(megapixels * 4e6 / 3)));
    const auto rows = static_cast<std::uint32_t>(std::lround(columns * 0.75));
    return {painted("maze, rows", megapixels,
                    [=](double, double, std::uint32_t x, std::uint32_t y) {
                        return corridor(y, x == 0, x == columns - 1);
                    },
                    {{0, 0}}),
            painted("maze, cols", megapixels,
                    [=](double, double, std::uint32_t x, std::uint32_t y) {
                        return corridor(x, y == 0, y == rows - 1);
                    },
                    {{0, 0}})};
}

} // namespace pelmira::bench
