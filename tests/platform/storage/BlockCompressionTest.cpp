#include "platform/storage/BlockCompression.h"

#include "support/Test.h"

namespace pelmira {
namespace {

using Bytes = std::vector<std::uint8_t>;

void append(Bytes& stream, const char* magic)
{
    std::copy_n(magic, 4, std::back_inserter(stream));
}

void append(Bytes& stream, std::size_t size)
{
    for (unsigned shift = 0; shift < 32; shift += 8)
        stream.push_back(static_cast<std::uint8_t>(size >> shift));
}

void appendPacked(Bytes& stream, const Bytes& block, std::size_t decodedSize)
{
    append(stream, "bv41");
    append(stream, decodedSize);
    append(stream, block.size());
    stream.insert(stream.end(), block.begin(), block.end());
}

Bytes randomBytes(std::size_t size, unsigned seed)
{
    std::mt19937 random(seed);
    Bytes bytes(size);
    std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<std::uint8_t>(random()); });
    return bytes;
}

std::size_t bound(const Bytes& source)
{
    return source.size() + source.size() / 255 + 16;
}

Bytes decoded(const Bytes& stream, std::size_t size)
{
    Bytes out(size, 0xEE);
    out.resize(BlockCompression::decode(stream, out));
    return out;
}

/// Random bytes said twice over: only references across blocks can compress the second half.
Bytes repetitiveSource()
{
    Bytes source = randomBytes(20000, 1);
    source.insert(source.end(), 5000, 0);
    const Bytes again(source.begin(), source.begin() + 20000);
    source.insert(source.end(), again.begin(), again.end());
    return source;
}

TEST(BlockCompression, RoundTripsThroughItsOwnEncoder)
{
    Bytes mask(5'000'000, 255);
    std::fill(mask.begin() + 1'000'000, mask.begin() + 3'000'001, 0);
    const Bytes sources[] = {
        {}, {9}, Bytes(3'000'000, 7), randomBytes(2'500'000, 3), mask, repetitiveSource()};
    for (const Bytes& source : sources) {
        const Bytes stream = BlockCompression::encode(source, bound(source));
        ASSERT_GE(stream.size(), 4U);
        EXPECT_EQ(decoded(stream, source.size()), source);
    }
    EXPECT_LT(BlockCompression::encode(mask, bound(mask)).size(), mask.size() / 200);
    EXPECT_EQ(BlockCompression::encode({}, bound({})), Bytes({'b', 'v', '4', '$'}));
}

TEST(BlockCompression, EncoderGivesNothingRatherThanTooMuch)
{
    const Bytes source = randomBytes(1000, 4);
    const std::size_t needed = BlockCompression::encode(source, bound(source)).size();
    EXPECT_EQ(BlockCompression::encode(source, needed).size(), needed);
    for (std::size_t capacity = 0; capacity < needed; ++capacity)
        ASSERT_TRUE(BlockCompression::encode(source, capacity).empty());
}

TEST(BlockCompression, ReadsAHandWrittenReferenceIntoTheBlockBeforeAndNoForgedSize)
{
    Bytes stream;
    append(stream, "bv4-");
    append(stream, 3U);
    stream.insert(stream.end(), {'a', 'b', 'c'});
    // One literal 'x', a match of 4 + 2 bytes at distance 4, then the last literals "12345".
    appendPacked(stream, {0x12, 'x', 4, 0, 0x50, '1', '2', '3', '4', '5'}, 12);
    append(stream, "bv4$");
    const std::string expected = "abcxabcxab12345";
    EXPECT_EQ(decoded(stream, 100), Bytes(expected.begin(), expected.end()));
    EXPECT_EQ(decoded(stream, 8), Bytes(expected.begin(), expected.begin() + 8));

    for (const std::size_t forged : {0x7FFFFFFFUL, 0x80000000UL, 0xFFFFFFFFUL}) {
        stream.clear();
        appendPacked(stream, {0x10, 'x'}, forged);
        EXPECT_TRUE(decoded(stream, 50).empty());
        stream.clear();
        append(stream, "bv4-");
        append(stream, forged);
        stream.push_back('y');
        EXPECT_EQ(decoded(stream, 50), Bytes{'y'});
    }
}

TEST(BlockCompression, EveryTruncationGivesAPrefix)
{
    Bytes source = repetitiveSource();
    source.erase(source.begin() + 300, source.begin() + 20000);
    source.resize(700);
    const Bytes stream = BlockCompression::encode(source, bound(source));
    for (std::size_t length = 0; length < stream.size(); ++length) {
        // An allocation of exactly this length, so that reading on is seen by the sanitizer.
        const std::unique_ptr<std::uint8_t[]> cut(new std::uint8_t[length]);
        std::copy_n(stream.begin(), length, cut.get());
        Bytes out(source.size(), 0);
        const std::size_t good = BlockCompression::decode({cut.get(), length}, out);
        ASSERT_TRUE(std::equal(out.begin(), out.begin() + static_cast<std::ptrdiff_t>(good),
                               source.begin()));
        ASSERT_TRUE(std::all_of(out.begin() + static_cast<std::ptrdiff_t>(good), out.end(),
                                [](auto byte) { return byte == 0; }));
    }
}

} // namespace
} // namespace pelmira
