#pragma once

#include <array>
#include <cstdint>
#include <cstring>

namespace pelmira {

/// Four numbers at once, as GCC and Clang know them for every processor.
using Float4 = float __attribute__((vector_size(16)));
using Int4 = std::int32_t __attribute__((vector_size(16)));

inline Float4 load4(const float* from)
{
    Float4 value;
    std::memcpy(&value, from, sizeof value);
    return value;
}

inline void store4(float* to, Float4 value)
{
    std::memcpy(to, &value, sizeof value);
}

inline float sumOf(Float4 v)
{
    return (v[0] + v[1]) + (v[2] + v[3]);
}

/// What lies below 0 becomes 0.
inline Float4 positive(Float4 v)
{
    return v > 0.0F ? v : Float4{};
}

/// The lanes of four as the rows of the result.
inline std::array<Float4, 4> transposed(Float4 a, Float4 b, Float4 c, Float4 d)
{
    const Float4 ab = __builtin_shufflevector(a, b, 0, 4, 1, 5);
    const Float4 cd = __builtin_shufflevector(c, d, 0, 4, 1, 5);
    const Float4 abHigh = __builtin_shufflevector(a, b, 2, 6, 3, 7);
    const Float4 cdHigh = __builtin_shufflevector(c, d, 2, 6, 3, 7);
    return {__builtin_shufflevector(ab, cd, 0, 1, 4, 5),
            __builtin_shufflevector(ab, cd, 2, 3, 6, 7),
            __builtin_shufflevector(abHigh, cdHigh, 0, 1, 4, 5),
            __builtin_shufflevector(abHigh, cdHigh, 2, 3, 6, 7)};
}

/// Base 2, of numbers from 1 on: right at the powers of two, straight between them.
inline Float4 roughLog2(Float4 v)
{
    Int4 bits;
    std::memcpy(&bits, &v, sizeof bits);
    constexpr float unit = 1.0F / (1 << 23);
    return __builtin_convertvector(bits - 0x3F800000, Float4) * unit;
}

} // namespace pelmira
