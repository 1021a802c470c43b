#pragma once

#include "platform/base/MallocBlock.h"

#include <cstddef>

namespace pelmira {

/// Uninitialised memory for a plane of an image, in large pages where the system has them: a
/// fresh plane is otherwise slower to be handed out by the kernel, page by page, than to be
/// computed. Throws std::bad_alloc.
MallocBlock allocateLargeBlock(std::size_t size);

/// From now on what is larger than a megabyte goes back to the system when it is freed. Otherwise
/// the C library learns from the first photo that such blocks come and go, and keeps them.
void giveLargeBlocksBack();

} // namespace pelmira
