#include "mask_editor/undo/MaskTile.h"

#include <algorithm>
#include <cstring>
#include <lz4.h>
#include <utility>
#include <vector>

namespace pelmira {
namespace {

MallocBlock copyOf(const std::uint8_t* bytes, std::size_t size)
{
    MallocBlock block(static_cast<std::uint8_t*>(std::malloc(size)));
    if (block)
        std::copy_n(bytes, size, block.get());
    return block;
}

} // namespace

std::shared_ptr<MaskTile> MaskTile::of(const std::uint8_t* bytes, std::size_t size)
{
    if (std::memcmp(bytes, bytes + 1, size - 1) == 0)
        return std::make_shared<MaskTile>(Private{}, size, bytes[0], nullptr);
    MallocBlock block = copyOf(bytes, size);
    return block ? std::make_shared<MaskTile>(Private{}, size, 0, std::move(block)) : nullptr;
}

void MaskTile::copyTo(std::uint8_t* bytes) const
{
    const std::lock_guard lock(_mutex);
    if (!_bytes)
        std::fill_n(bytes, _size, _alike);
    else if (_packedSize == 0)
        std::copy_n(_bytes.get(), _size, bytes);
    else
        LZ4_decompress_safe(reinterpret_cast<const char*>(_bytes.get()),
                            reinterpret_cast<char*>(bytes), static_cast<int>(_packedSize),
                            static_cast<int>(_size));
}

// Nobody writes the bytes, so they are read without the lock: the main thread never waits for it
// longer than two pointers take to change places.
void MaskTile::pack()
{
    {
        const std::lock_guard lock(_mutex);
        if (!_bytes || _packedSize != 0 || _packsBadly)
            return;
    }
    std::vector<char> packed(_size - _size / 8);
    const int packedSize =
        LZ4_compress_default(reinterpret_cast<const char*>(_bytes.get()), packed.data(),
                             static_cast<int>(_size), static_cast<int>(packed.size()));
    MallocBlock block = packedSize > 0
                            ? copyOf(reinterpret_cast<const std::uint8_t*>(packed.data()),
                                     static_cast<std::size_t>(packedSize))
                            : nullptr;
    const std::lock_guard lock(_mutex);
    _packsBadly = !block;
    if (_packsBadly)
        return;
    std::swap(_bytes, block); // the old ones are freed after the lock is
    _packedSize = static_cast<std::size_t>(packedSize);
}

std::size_t MaskTile::footprint() const
{
    const std::lock_guard lock(_mutex);
    if (!_bytes)
        return 0;
    return _packedSize == 0 ? _size : _packedSize;
}

} // namespace pelmira
