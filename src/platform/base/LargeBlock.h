#pragma once

#include "platform/base/MallocBlock.h"

#include <cstddef>

namespace pelmira {

/// Uninitialised memory for a plane of an image, in large pages where the system has them: a
/// fresh plane is otherwise slower to be handed out by the kernel, page by page, than to be
/// computed. Throws std::bad_alloc.
MallocBlock allocateLargeBlock(std::size_t size);

} // namespace pelmira
