#include "platform/encode/DeflatePart.h"

#include <algorithm>
#include <array>
#include <libdeflate.h>
#include <optional>
#include <zlib.h>

namespace pelmira {
namespace {

using Byte = std::uint8_t;

struct LastBlock {
    std::size_t headerBit = 0; ///< where its header starts, counted in bits
    unsigned unusedBits = 0;   ///< behind its end, in the stream's last byte
};

/// Goes through a deflate stream, block by block. Deflate doesn't say where a block ends, so it is
/// decoded; zlib can stop between two of them.
std::optional<LastBlock> lastBlockOf(std::span<Byte> stream)
{
    constexpr int isBetweenBlocks = 128;
    constexpr int wasLastBlock = 64;
    z_stream decoder{};
    if (inflateInit2(&decoder, -MAX_WBITS) != Z_OK)
        return {};
    decoder.next_in = stream.data();
    decoder.avail_in = static_cast<uInt>(stream.size());
    std::array<Byte, 1 << 15> decoded{};
    LastBlock last;
    bool isFound = false;
    for (int status = Z_OK; status == Z_OK && !isFound;) {
        decoder.next_out = decoded.data();
        decoder.avail_out = decoded.size();
        status = inflate(&decoder, Z_BLOCK);
        if (!(decoder.data_type & isBetweenBlocks))
            continue;
        const auto unused = static_cast<unsigned>(decoder.data_type & 7);
        isFound = decoder.data_type & wasLastBlock;
        if (isFound)
            last.unusedBits = unused;
        else
            last.headerBit = (stream.size() - decoder.avail_in) * 8 - unused;
    }
    const bool isWhole = isFound && decoder.avail_in == 0;
    inflateEnd(&decoder);
    return isWhole ? std::optional(last) : std::nullopt;
}

/// Makes the stream one that goes on, and ends it at a byte's end with an empty stored block. The
/// room behind it must hold 5 bytes. Gives its new length, or 0.
std::size_t reopen(std::vector<Byte>& room, std::size_t length)
{
    const auto last = lastBlockOf({room.data(), length});
    if (!last)
        return 0;
    room[last->headerBit / 8] &= static_cast<Byte>(~(1U << (last->headerBit % 8)));
    // Three zero bits: not the last, stored. Then its length, zero, and the complement.
    if (last->unusedBits < 3)
        room[length++] = 0;
    constexpr std::array<Byte, 4> noBytes{0x00, 0x00, 0xFF, 0xFF};
    std::copy(noBytes.begin(), noBytes.end(), room.begin() + static_cast<std::ptrdiff_t>(length));
    return length + noBytes.size();
}

} // namespace

void DeflatePart::Free::operator()(libdeflate_compressor* compressor) const
{
    libdeflate_free_compressor(compressor);
}

DeflatePart::DeflatePart(int level) : _compressor(libdeflate_alloc_compressor(level))
{
}

DeflatePart::~DeflatePart() = default;

std::vector<Byte> DeflatePart::compress(std::span<const Byte> bytes, Position position)
{
    if (!_compressor)
        return {};
    const std::size_t bound =
        libdeflate_deflate_compress_bound(_compressor.get(), bytes.size()) + 5;
    if (_room.size() < bound)
        _room.resize(bound);
    std::size_t length = libdeflate_deflate_compress(_compressor.get(), bytes.data(), bytes.size(),
                                                     _room.data(), _room.size() - 5);
    if (length > 0 && position == Position::Inner)
        length = reopen(_room, length);
    const auto end = _room.begin() + static_cast<std::ptrdiff_t>(length);
    return {_room.begin(), end};
}

} // namespace pelmira
