#include "mask_editor/wand/BitRows.h"

#include "mask_editor/wand/TileGrid.h"

#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace pelmira {
namespace {

using Bytes = std::uint8_t __attribute__((vector_size(16)));

/// One bit for each byte that is all ones; the others are zero.
std::uint32_t bitsOfBytes(Bytes flags)
{
#ifdef __SSE2__
    return static_cast<std::uint32_t>(_mm_movemask_epi8(reinterpret_cast<__m128i>(flags)));
#else
    // Each byte keeps the one bit that is its own among eight, and a product adds the eight up.
    constexpr Bytes Own = {1, 2, 4, 8, 16, 32, 64, 128, 1, 2, 4, 8, 16, 32, 64, 128};
    using Words = std::uint64_t __attribute__((vector_size(16)));
    const Words words = reinterpret_cast<Words>(flags & Own);
    constexpr std::uint64_t AddUp = 0x0101010101010101;
    return static_cast<std::uint32_t>(words[0] * AddUp >> 56 | (words[1] * AddUp >> 56) << 8);
#endif
}

} // namespace

void nearerThan(const std::uint8_t* distances, std::uint8_t tolerance, BitRow* rows)
{
    const Bytes limits = Bytes{} + tolerance;
    for (unsigned y = 0; y < TileSide; ++y) {
        BitRow row = 0;
        for (unsigned x = 0; x < TileSide; x += sizeof(Bytes)) {
            Bytes line;
            std::memcpy(&line, distances + y * TileSide + x, sizeof line);
            row |= BitRow{bitsOfBytes(reinterpret_cast<Bytes>(line < limits))} << x;
        }
        rows[y] = row;
    }
}

} // namespace pelmira
