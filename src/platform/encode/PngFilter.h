#pragma once

#include <cstddef>
#include <cstdint>

namespace pelmira {

/// Applies to one row of 4-byte pixels the filter that leaves the smallest differences, taken as
/// signed: they pack best. `row` and `above` have `length` bytes, a multiple of 4, and 4 zero bytes
/// before them; `above` is all zero for the first row. Writes the filter's number and then the
/// row: length + 1 bytes. `scratch` has `length` bytes.
/// Filters and the rule of choice: PNG (Third Edition), chapters 9 and 12.7.
void filterPngRow(const std::uint8_t* row, const std::uint8_t* above, std::size_t length,
                  std::uint8_t* filtered, std::uint8_t* scratch);

} // namespace pelmira
