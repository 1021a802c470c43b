#pragma once

#include <QByteArray>
#include <QImage>

namespace pelmira {

/// Whether this system can write HEIF: it has libheif with an encoder for HEVC.
bool canEncodeHeif();

/// A HEIF file (HEVC, "heic") of the pixels with their transparency, marked as sRGB, at the
/// encoder's own quality, and nothing beside. Lossy in colour and, less so, in transparency. Empty
/// for a null image, without an encoder or memory, or if the encoder fails. Safe from any thread;
/// takes seconds for a large image.
QByteArray heifRepresentation(const QImage& image);

} // namespace pelmira
