#include "platform/encode/PngFilter.h"

#include <cstdlib>
#include <cstring>
#include <iterator>
#include <limits>

namespace pelmira {
namespace {

using Byte = std::uint8_t;

constexpr std::size_t pixelBytes = 4;

// Plain loops without branches, of small types: the compiler makes vectors of them.

struct None {
    static int predict(int, int) { return 0; }
};
struct Sub {
    static int predict(int left, int) { return left; }
};
struct Up {
    static int predict(int, int up) { return up; }
};
struct Average {
    static int predict(int left, int up) { return (left + up) / 2; }
};

template <typename Filter>
void filterRow(const Byte* row, const Byte* above, std::size_t length, Byte* out)
{
    const Byte* left = row - pixelBytes;
    for (std::size_t i = 0; i < length; ++i)
        out[i] = static_cast<Byte>(row[i] - Filter::predict(left[i], above[i]));
}

void filterRowPaeth(const Byte* row, const Byte* above, std::size_t length, Byte* out)
{
    using Short = std::int16_t;
    const Byte* left = row - pixelBytes;
    const Byte* corner = above - pixelBytes;
    for (std::size_t i = 0; i < length; ++i) {
        const Short a = left[i];
        const Short b = above[i];
        const Short c = corner[i];
        const auto fromA = static_cast<Short>(b - c);
        const auto fromB = static_cast<Short>(a - c);
        const auto pa = static_cast<Short>(std::abs(fromA));
        const auto pb = static_cast<Short>(std::abs(fromB));
        const auto pc = static_cast<Short>(std::abs(fromA + fromB));
        const Short nearer = pb < pa ? b : a;
        const Short distance = pb < pa ? pb : pa;
        out[i] = static_cast<Byte>(row[i] - (pc < distance ? c : nearer));
    }
}

std::uint64_t sizeOfDifferences(const Byte* values, std::size_t length)
{
    std::uint64_t total = 0;
    while (length > 0) { // in runs whose sum fits 32 bits
        const std::size_t run = length < (1U << 20) ? length : (1U << 20);
        std::uint32_t sum = 0;
        for (std::size_t i = 0; i < run; ++i)
            sum += values[i] < 128 ? values[i] : 256U - values[i];
        total += sum;
        values += run;
        length -= run;
    }
    return total;
}

} // namespace

void filterPngRow(const Byte* row, const Byte* above, std::size_t length, Byte* filtered,
                  Byte* scratch)
{
    using Function = void (*)(const Byte*, const Byte*, std::size_t, Byte*);
    constexpr Function filters[] = {filterRow<None>, filterRow<Sub>, filterRow<Up>,
                                    filterRow<Average>, filterRowPaeth};
    std::uint64_t least = std::numeric_limits<std::uint64_t>::max();
    for (std::size_t number = 0; number < std::size(filters); ++number) {
        filters[number](row, above, length, scratch);
        const std::uint64_t size = sizeOfDifferences(scratch, length);
        if (size >= least)
            continue;
        least = size;
        filtered[0] = static_cast<Byte>(number);
        std::memcpy(filtered + 1, scratch, length);
    }
}

} // namespace pelmira
