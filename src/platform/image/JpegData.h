#pragma once

#include <QByteArrayView>

namespace pelmira {

/// Whether a JPEG stream reaches its end marker and holds as much data as its size needs at least.
/// Decoders fill what is missing with grey and call that a success.
/// Markers: ITU-T T.81, annex B.
bool isCompleteJpeg(QByteArrayView bytes);

} // namespace pelmira
