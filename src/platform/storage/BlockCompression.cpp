#include "platform/storage/BlockCompression.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <lz4.h>
#include <memory>
#include <string_view>

namespace pelmira {
namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::string_view CompressedMagic = "bv41";
constexpr std::string_view StoredMagic = "bv4-";
constexpr std::string_view EndMagic = "bv4$";
constexpr std::size_t MagicLength = 4;
constexpr std::size_t SizeLength = 4;

// Large enough that headers cost nothing, small enough to be decoded piece by piece one day.
constexpr std::size_t BlockSize = std::size_t{1} << 20;
// LZ4 looks back no further than this.
constexpr std::size_t LargestDictionary = std::size_t{1} << 16;
// A length byte of an LZ4 block stands for at most 255 bytes of output, a token for a few dozen.
constexpr std::size_t LargestExpansion = 255;
constexpr std::size_t ExpansionSlack = 64;

struct FreeStream {
    void operator()(LZ4_stream_t* stream) const { LZ4_freeStream(stream); }
};

class Writer {
public:
    explicit Writer(std::size_t capacity) : _capacity(capacity) {}

    bool magic(std::string_view magic) { return append(magic.data(), magic.size()); }
    bool size(std::size_t size)
    {
        const std::array<std::uint8_t, SizeLength> bytes = {
            static_cast<std::uint8_t>(size), static_cast<std::uint8_t>(size >> 8),
            static_cast<std::uint8_t>(size >> 16), static_cast<std::uint8_t>(size >> 24)};
        return append(bytes.data(), bytes.size());
    }
    bool append(const void* bytes, std::size_t count)
    {
        if (count > _capacity - _out.size())
            return false;
        const auto* first = static_cast<const std::uint8_t*>(bytes);
        _out.insert(_out.end(), first, first + count);
        return true;
    }
    std::vector<std::uint8_t> take() { return std::move(_out); }

private:
    std::size_t _capacity;
    std::vector<std::uint8_t> _out;
};

class Reader {
public:
    explicit Reader(Bytes stream) : _left(stream) {}

    bool magic(std::string_view& magic)
    {
        Bytes bytes;
        if (!take(MagicLength, bytes))
            return false;
        magic = {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
        return true;
    }
    bool size(std::size_t& size)
    {
        Bytes bytes;
        if (!take(SizeLength, bytes))
            return false;
        size = bytes[0] | std::size_t{bytes[1]} << 8 | std::size_t{bytes[2]} << 16 |
               std::size_t{bytes[3]} << 24;
        return true;
    }
    bool take(std::size_t count, Bytes& bytes)
    {
        if (count > _left.size())
            return false;
        bytes = _left.first(count);
        _left = _left.subspan(count);
        return true;
    }
    /// What is left of a payload that should have been longer.
    Bytes takeUpTo(std::size_t count)
    {
        Bytes bytes;
        take(std::min(count, _left.size()), bytes);
        return bytes;
    }

private:
    Bytes _left;
};

/// Decodes one LZ4 block to destination[done...]; false if the stream can't go on after it.
bool decodeBlock(Bytes block, std::size_t decodedSize, std::span<std::uint8_t> destination,
                 std::size_t& done)
{
    if (decodedSize > block.size() * LargestExpansion + ExpansionSlack ||
        decodedSize > LZ4_MAX_INPUT_SIZE || block.size() > LZ4_MAX_INPUT_SIZE)
        return false;
    const std::size_t wanted = std::min(decodedSize, destination.size() - done);
    const std::size_t dictionarySize = std::min(done, LargestDictionary);
    std::uint8_t* const target = destination.data() + done;
    const int decoded = LZ4_decompress_safe_partial_usingDict(
        reinterpret_cast<const char*>(block.data()), reinterpret_cast<char*>(target),
        static_cast<int>(block.size()), static_cast<int>(wanted), static_cast<int>(wanted),
        reinterpret_cast<const char*>(target - dictionarySize), static_cast<int>(dictionarySize));
    const std::size_t good = decoded < 0 ? 0 : static_cast<std::size_t>(decoded);
    std::memset(target + good, 0, wanted - good);
    done += good;
    return good == decodedSize;
}

} // namespace

std::vector<std::uint8_t> BlockCompression::encode(Bytes source, std::size_t capacity)
{
    Writer out(capacity);
    const std::unique_ptr<LZ4_stream_t, FreeStream> state(LZ4_createStream());
    const auto largest = static_cast<int>(std::min<std::size_t>(BlockSize, source.size()));
    std::vector<char> packed(static_cast<std::size_t>(LZ4_compressBound(largest)));
    if (!state)
        return {};
    for (std::size_t at = 0; at < source.size(); at += BlockSize) {
        const Bytes raw = source.subspan(at, std::min(BlockSize, source.size() - at));
        // The stream's dictionary is the source itself, so a block may also follow a stored one.
        const int packedSize = LZ4_compress_fast_continue(
            state.get(), reinterpret_cast<const char*>(raw.data()), packed.data(),
            static_cast<int>(raw.size()), static_cast<int>(packed.size()), 1);
        const auto count = static_cast<std::size_t>(packedSize);
        // One more header field than a stored block has, so as many bytes must be gained.
        const bool isWorthIt = packedSize > 0 && count + SizeLength < raw.size();
        const bool isWritten = isWorthIt ? out.magic(CompressedMagic) && out.size(raw.size()) &&
                                               out.size(count) && out.append(packed.data(), count)
                                         : out.magic(StoredMagic) && out.size(raw.size()) &&
                                               out.append(raw.data(), raw.size());
        if (!isWritten)
            return {};
    }
    if (!out.magic(EndMagic))
        return {};
    return out.take();
}

std::size_t BlockCompression::decode(Bytes stream, std::span<std::uint8_t> destination)
{
    Reader in(stream);
    std::size_t done = 0;
    std::string_view magic;
    while (done < destination.size() && in.magic(magic)) {
        std::size_t size = 0;
        if (magic == StoredMagic && in.size(size)) {
            const Bytes raw = in.takeUpTo(std::min(size, destination.size() - done));
            std::copy(raw.begin(), raw.end(),
                      destination.begin() + static_cast<std::ptrdiff_t>(done));
            done += raw.size();
            if (raw.size() < size)
                break;
        } else if (std::size_t packedSize = 0;
                   magic == CompressedMagic && in.size(size) && in.size(packedSize)) {
            Bytes block;
            if (!in.take(packedSize, block) || !decodeBlock(block, size, destination, done))
                break;
        } else {
            break;
        }
    }
    return done;
}

} // namespace pelmira
