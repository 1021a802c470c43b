#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace pelmira {

/// A container of LZ4 blocks. A stream is any sequence of blocks, ended by "bv4$":
///   "bv41", decoded size, encoded size, then one raw LZ4 block of that encoded size;
///   "bv4-", size, then that many stored bytes.
/// Sizes are unsigned 32-bit little-endian. A compressed block may refer back into what the
/// blocks before it have decoded to.
class BlockCompression {
public:
    /// The stream for the source, or nothing if it would be longer than `capacity`. A capacity of
    /// size + size / 255 + 16 always suffices.
    static std::vector<std::uint8_t> encode(std::span<const std::uint8_t> source,
                                            std::size_t capacity);

    /// Decodes into the destination and returns the number of bytes that are good: fewer than
    /// there are if the stream is damaged, cut short or holds less, and never more than fit.
    /// What a damaged block has written behind them is zeroed, the rest isn't touched.
    static std::size_t decode(std::span<const std::uint8_t> stream,
                              std::span<std::uint8_t> destination);
};

} // namespace pelmira
