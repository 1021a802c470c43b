#pragma once

#include "platform/image/Image.h"

#include <QByteArrayView>
#include <QImage>

#include <variant>

namespace pelmira {

/// Whether a file begins as one of the HEIF family (HEIC, AVIF) that can be decoded here. Only the
/// start is looked at. Signature: ISO/IEC 14496-12, "ftyp".
bool isHeif(QByteArrayView bytes);

/// Decodes the file's primary image, upright: the file's own rotation, mirroring and cropping are
/// carried out. Its colour profile, ICC or nclx, is the image's colour space, and none means sRGB;
/// a picture with more than 8 bits a component keeps them. The size is checked before anything is
/// decoded. Safe from any thread.
std::variant<QImage, ImageProblem> readHeif(QByteArrayView bytes, const ImageLimits& limits);

} // namespace pelmira
