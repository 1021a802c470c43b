#include "Fuzz.h"
#include "platform/storage/BlockCompression.h"

#include <algorithm>
#include <vector>

// Two bytes say how much room there is, the rest is the stream.
void pelmira::fuzz(const QByteArray& input)
{
    if (input.size() < 2)
        return;
    const std::vector<std::uint8_t> stream(input.begin() + 2, input.end());
    const auto byte = [&](qsizetype i) { return std::size_t{static_cast<std::uint8_t>(input[i])}; };
    std::vector<std::uint8_t> decoded(byte(0) | byte(1) << 8);
    const std::size_t good = BlockCompression::decode(stream, decoded);
    must(good <= decoded.size());
    must(std::all_of(decoded.begin() + static_cast<std::ptrdiff_t>(good), decoded.end(),
                     [](std::uint8_t byte) { return byte == 0; })); // no rubbish after it

    // Whatever came out goes in again, and any plane comes back.
    const auto encoded = BlockCompression::encode(stream, stream.size() + stream.size() / 255 + 18);
    std::vector<std::uint8_t> back(stream.size());
    must(!encoded.empty() && BlockCompression::decode(encoded, back) == stream.size());
    must(back == stream);
}
