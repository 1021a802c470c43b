#pragma once

#include "mask_editor/undo/ZKLUndoEntry.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <vector>

namespace pelmira::test {

/// A mask's alpha, row by row.
using Plane = std::vector<std::uint8_t>;

inline std::shared_ptr<ZKLUndoEntry> entryOf(const Plane& plane)
{
    MallocBlock block(static_cast<std::uint8_t*>(std::malloc(plane.size())));
    std::copy(plane.begin(), plane.end(), block.get());
    return ZKLUndoEntry::initWithBuffer(std::move(block), static_cast<std::int32_t>(plane.size()));
}

inline Plane planeOf(ZKLUndoEntry& entry)
{
    std::int32_t length = 0;
    const std::uint8_t* data = entry.originalDataWithLengthPtr(&length);
    return {data, data + length};
}

} // namespace pelmira::test
