#pragma once

#include <cstdint>

namespace pelmira {

/// The machine's whole memory in bytes, whatever part of it is free.
std::uint64_t physicalMemory();

} // namespace pelmira
