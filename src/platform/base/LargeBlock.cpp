#include "platform/base/LargeBlock.h"

#include <malloc.h>
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

void giveLargeBlocksBack()
{
#ifdef __GLIBC__
    mallopt(M_MMAP_THRESHOLD, 1 << 20);
    mallopt(M_TRIM_THRESHOLD, 2 << 20);
#endif
}

} // namespace pelmira
