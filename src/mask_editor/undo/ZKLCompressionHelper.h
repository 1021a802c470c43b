#pragma once

#include "platform/base/MallocBlock.h"

#include <cstdint>

namespace pelmira {

/// Compression of a mask plane into one block of the LZ4 container (platform/BlockCompression.h).
class ZKLCompressionHelper {
public:
    /// Null and 0 if the source can't be encoded.
    static void compressionEncodeSrc(const std::uint8_t* source, std::int32_t srcLen,
                                     MallocBlock& dest, std::int32_t& destLen);

    /// Always a block of destLen bytes, unless there is no memory. A short or damaged source is
    /// no failure: what it doesn't cover is 0, so that a forged length is given no real memory.
    static MallocBlock compressionDecodeSrc(const std::uint8_t* source, std::int32_t srcLen,
                                            std::int32_t destLen);
};

} // namespace pelmira
