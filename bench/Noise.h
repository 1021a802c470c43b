#pragma once

#include <cmath>
#include <cstdint>

// Noise made by rule, alike on every machine.

namespace pelmira::bench {

inline std::uint32_t hashed(std::uint32_t x, std::uint32_t y, std::uint32_t salt)
{
    std::uint32_t h = x * 0x9E3779B1U ^ y * 0x85EBCA77U ^ salt * 0xC2B2AE3DU;
    h ^= h >> 15;
    h *= 0x2C1B3C6DU;
    h ^= h >> 12;
    h *= 0x297A2D39U;
    return h ^ h >> 15;
}

/// About normal, with deviation 1: the sum of the hash's four bytes.
inline double grain(std::uint32_t x, std::uint32_t y, std::uint32_t salt)
{
    const std::uint32_t h = hashed(x, y, salt);
    const auto sum = static_cast<int>((h & 255) + (h >> 8 & 255) + (h >> 16 & 255) + (h >> 24));
    return (sum - 510) / 148.0;
}

/// Smooth noise in 0 to 1 with one bump a unit.
inline double smoothNoise(double x, double y, std::uint32_t salt)
{
    const double fx = std::floor(x);
    const double fy = std::floor(y);
    const auto corner = [&](int dx, int dy) {
        return hashed(static_cast<std::uint32_t>(static_cast<std::int64_t>(fx) + dx),
                      static_cast<std::uint32_t>(static_cast<std::int64_t>(fy) + dy), salt) /
               4294967295.0;
    };
    const auto eased = [](double t) { return t * t * (3 - 2 * t); };
    const double tx = eased(x - fx);
    const double ty = eased(y - fy);
    return std::lerp(std::lerp(corner(0, 0), corner(1, 0), tx),
                     std::lerp(corner(0, 1), corner(1, 1), tx), ty);
}

inline double octaves(double x, double y, int count, std::uint32_t salt)
{
    double sum = 0;
    double weight = 0.5;
    for (int i = 0; i < count; ++i, weight *= 0.5, x *= 2, y *= 2)
        sum += weight * smoothNoise(x, y, salt + static_cast<std::uint32_t>(i));
    return sum;
}

} // namespace pelmira::bench
