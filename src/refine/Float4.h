#pragma once

#include <cstring>

namespace pelmira {

/// Four floats at once, as GCC and Clang know them for every processor.
using Float4 = float __attribute__((vector_size(16)));

inline Float4 load4(const float* from)
{
    Float4 value;
    std::memcpy(&value, from, sizeof value);
    return value;
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

} // namespace pelmira
