#pragma once

#include <QByteArrayView>

#include <cstdint>

namespace pelmira {

/// The most pixels that an item put together of others, a grid or an overlay, says to have; 0 if
/// there is none that can be read. ISO/IEC 23008-12, 6.6.2; boxes by ISO/IEC 14496-12, 8.11.
///
/// Decoders make the canvas as large as it says there, whatever size the file gives to the picture.
std::uint64_t largestHeifCanvas(QByteArrayView file);

} // namespace pelmira
