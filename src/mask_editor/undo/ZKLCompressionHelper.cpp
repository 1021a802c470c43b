#include "mask_editor/undo/ZKLCompressionHelper.h"

#include "platform/storage/BlockCompression.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace pelmira {
namespace {

constexpr std::uint32_t LargestSource = 0x7E000000;

std::uint32_t destinationBound(std::uint32_t length)
{
    return length > LargestSource ? 0 : length + length / 255 + 16;
}

std::size_t atLeastNone(std::int32_t length)
{
    return static_cast<std::size_t>(std::max(length, 0));
}

} // namespace

void ZKLCompressionHelper::compressionEncodeSrc(const std::uint8_t* source, std::int32_t srcLen,
                                                MallocBlock& dest, std::int32_t& destLen)
{
    dest.reset();
    destLen = 0;
    // A negative length is above the largest one when taken as unsigned.
    const std::uint32_t bound = destinationBound(static_cast<std::uint32_t>(srcLen));
    if (bound == 0)
        return;
    const std::vector<std::uint8_t> stream =
        BlockCompression::encode({source, atLeastNone(srcLen)}, bound);
    if (stream.empty())
        return;
    dest.reset(static_cast<std::uint8_t*>(std::malloc(stream.size())));
    if (!dest)
        return;
    std::copy(stream.begin(), stream.end(), dest.get());
    destLen = static_cast<std::int32_t>(stream.size());
}

MallocBlock ZKLCompressionHelper::compressionDecodeSrc(const std::uint8_t* source,
                                                       std::int32_t srcLen, std::int32_t destLen)
{
    const std::size_t length = atLeastNone(destLen);
    MallocBlock block(static_cast<std::uint8_t*>(std::calloc(std::max<std::size_t>(length, 1), 1)));
    if (block)
        BlockCompression::decode({source, atLeastNone(srcLen)}, {block.get(), length});
    return block;
}

} // namespace pelmira
