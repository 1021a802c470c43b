#pragma once

#include <cstdint>
#include <cstdlib>
#include <memory>

namespace pelmira {

struct FreeDeleter {
    void operator()(void* block) const { std::free(block); }
};

/// Bytes from the C allocator, which can shrink a block in place and hand out zeroed memory
/// without touching it.
using MallocBlock = std::unique_ptr<std::uint8_t[], FreeDeleter>;

} // namespace pelmira
