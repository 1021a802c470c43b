#pragma once

#include <QByteArrayView>
#include <QImage>

namespace pelmira {

/// How the Exif block of a PNG or WebP file asks for the picture to be shown, from 1 (as it is) to
/// 8; 1 where there is none or it can't be read. The image readers know it of JPEG and TIFF only.
/// Exif: CIPA DC-008, tag 0x0112. Where it lies: PNG, third edition, chunk eXIf; WebP container
/// specification, chunk EXIF.
int exifOrientation(QByteArrayView file);

/// The picture as it is to be shown.
QImage turnedUpright(QImage image, int exifOrientation);

} // namespace pelmira
