#include "platform/storage/BlockCompression.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <vector>

// Two bytes say how much room there is, the rest is the stream.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    using pelmira::BlockCompression;
    if (count < 2)
        return 0;
    const std::size_t room = bytes[0] | std::size_t{bytes[1]} << 8;
    const std::span<const std::uint8_t> stream(bytes + 2, count - 2);
    std::vector<std::uint8_t> decoded(room);
    const std::size_t good = BlockCompression::decode(stream, decoded);
    if (good > room)
        std::abort();
    if (std::any_of(decoded.begin() + static_cast<std::ptrdiff_t>(good), decoded.end(),
                    [](std::uint8_t byte) { return byte != 0; }))
        std::abort(); // rubbish where nothing was decoded

    // Whatever came out goes in again, and any plane comes back.
    const auto encoded = BlockCompression::encode(stream, count + count / 255 + 16);
    std::vector<std::uint8_t> back(stream.size());
    if (encoded.empty() || BlockCompression::decode(encoded, back) != stream.size() ||
        !std::equal(back.begin(), back.end(), stream.begin()))
        std::abort();
    return 0;
}
