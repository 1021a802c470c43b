#include "platform/base/LargeBlock.h"

#include <new>
#include <sys/mman.h>

namespace pelmira {
namespace {

constexpr std::size_t LargePage = std::size_t{2} << 20;
constexpr std::size_t CacheLine = 64;

constexpr std::size_t roundedUp(std::size_t size, std::size_t unit)
{
    return (size + unit - 1) / unit * unit;
}

} // namespace

MallocBlock allocateLargeBlock(std::size_t size)
{
    const std::size_t alignment = size >= LargePage ? LargePage : CacheLine;
    MallocBlock block(
        static_cast<std::uint8_t*>(std::aligned_alloc(alignment, roundedUp(size + 1, alignment))));
    if (!block)
        throw std::bad_alloc();
    if (size >= LargePage)
        madvise(block.get(), size, MADV_HUGEPAGE); // only advice: ignored where it can't be had
    return block;
}

} // namespace pelmira
