#pragma once

#include <cstdint>

namespace pelmira {

/// Sets of up to 64 pixels of one row: bit x stands for the pixel x of the tile.
using BitRow = std::uint64_t;

inline constexpr BitRow FullRow = ~BitRow{0};

inline constexpr BitRow bitAt(unsigned x)
{
    return BitRow{1} << x;
}

/// All runs of `open` that hold a seed, whole. Seeds must be open.
///
/// Towards higher bits one addition does it: a carry started at a run's lowest seed runs to its
/// end and leaves zeros behind. Towards lower bits, where nothing carries, the seeds travel by
/// 1, 2, 4, ... at a time over what is open all the way (Kogge and Stone's parallel prefix).
inline BitRow closeRuns(BitRow seeds, BitRow open)
{
    BitRow filled = (open & ~(open + seeds)) | seeds;
    for (unsigned shift = 1; shift < 64; shift *= 2) {
        filled |= open & (filled >> shift);
        open &= open >> shift;
    }
    return filled;
}

/// For a tile of 64 rows of 64 distances, the pixels that are nearer than the tolerance.
void nearerThan(const std::uint8_t* distances, std::uint8_t tolerance, BitRow* rows);

} // namespace pelmira
