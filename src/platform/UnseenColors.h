#pragma once

#include <cstddef>
#include <cstdint>

namespace pelmira {

/// Gives every fully transparent pixel the mean colour of the seen ones in its block of 16 by 16
/// pixels or, where it has none, in one near it. `rows` are R, G, B, A, straight, `stride` bytes
/// apart; transparency stays as it is. Without memory, or with nothing to see, it does nothing.
void fillUnseenColors(std::uint8_t* rows, int width, int height, std::ptrdiff_t stride);

} // namespace pelmira
