#pragma once

#include "platform/base/MallocBlock.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>

namespace pelmira {

/// A small square of a mask: as one byte where all are alike, otherwise as its bytes, or packed.
/// Its content never changes, so that snapshots may share it. Safe from any thread.
class MaskTile {
    struct Private {};

public:
    MaskTile(Private, std::size_t size, std::uint8_t alike, MallocBlock bytes)
        : _size(size), _alike(alike), _bytes(std::move(bytes))
    {
    }

    /// Copies `size` bytes, of which there is at least one. Nothing if there is no memory.
    static std::shared_ptr<MaskTile> of(const std::uint8_t* bytes, std::size_t size);

    /// Writes all the bytes.
    void copyTo(std::uint8_t* bytes) const;
    /// Takes less memory from now on, if its bytes allow.
    void pack();
    /// Bytes of memory that its content takes.
    std::size_t footprint() const;

private:
    const std::size_t _size;
    const std::uint8_t _alike; ///< the value of all bytes, if there is no block
    mutable std::mutex _mutex;
    MallocBlock _bytes;
    std::size_t _packedSize = 0; ///< 0 while `_bytes` are as they are
    bool _packsBadly = false;
};

} // namespace pelmira
