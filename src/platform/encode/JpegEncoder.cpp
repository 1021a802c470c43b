#include "platform/encode/JpegEncoder.h"

#include "platform/image/Image.h"

#include <QColorSpace>

#include <algorithm>
#include <cmath>
#include <csetjmp>
#include <cstddef>
#include <cstdio>
#include <jpeglib.h>
#include <new>
#include <vector>

namespace pelmira {
namespace {

struct Failure : jpeg_error_mgr {
    std::jmp_buf where;
};

[[noreturn]] void fail(j_common_ptr info)
{
    std::longjmp(static_cast<Failure*>(info->err)->where, 1);
}

/// The bound that libjpeg-turbo states for its own simpler interface, at full chroma resolution.
/// Memory that isn't written to costs nothing.
qsizetype mostBytes(const QImage& bitmap, qsizetype profileBytes)
{
    const auto padded = [](int side) { return qsizetype{side + 7} & ~qsizetype{7}; };
    return padded(bitmap.width()) * padded(bitmap.height()) * 6 + 2048 + profileBytes;
}

/// `bitmap` is in the bitmap form; gives the number of bytes written, 0 on failure. Objects with
/// destructors live in the caller: an error jumps back to here over what the library has on the
/// stack.
unsigned long compress(const QImage& bitmap, int quality, std::vector<QRgb>& row,
                       const QByteArray& profile, QByteArray& buffer)
{
    auto* bytes = reinterpret_cast<unsigned char*>(buffer.data());
    auto length = static_cast<unsigned long>(buffer.size());
    jpeg_compress_struct encoder{};
    Failure failure{};
    encoder.err = jpeg_std_error(&failure);
    failure.error_exit = fail;
    failure.output_message = [](j_common_ptr) {};
    if (setjmp(failure.where) != 0) {
        jpeg_destroy_compress(&encoder);
        return 0;
    }
    jpeg_create_compress(&encoder);
    jpeg_mem_dest(&encoder, &bytes, &length);
    encoder.image_width = static_cast<JDIMENSION>(bitmap.width());
    encoder.image_height = static_cast<JDIMENSION>(bitmap.height());
    encoder.input_components = 4;
    encoder.in_color_space = JCS_EXT_BGRX;
    jpeg_set_defaults(&encoder);
    jpeg_set_quality(&encoder, quality, TRUE);
    for (int i = 0; i < encoder.num_components; ++i) {
        encoder.comp_info[i].h_samp_factor = 1;
        encoder.comp_info[i].v_samp_factor = 1;
    }
    jpeg_start_compress(&encoder, TRUE);
    jpeg_write_icc_profile(&encoder, reinterpret_cast<const JOCTET*>(profile.constData()),
                           static_cast<unsigned>(profile.size()));
    while (encoder.next_scanline < encoder.image_height) {
        const auto* pixels = reinterpret_cast<const QRgb*>(
            bitmap.constScanLine(static_cast<int>(encoder.next_scanline)));
        std::transform(pixels, pixels + bitmap.width(), row.data(),
                       [](QRgb pixel) { return qUnpremultiply(pixel); });
        auto* line = reinterpret_cast<JSAMPROW>(row.data());
        jpeg_write_scanlines(&encoder, &line, 1);
    }
    jpeg_finish_compress(&encoder);
    jpeg_destroy_compress(&encoder);
    return length;
}

} // namespace

QByteArray jpegRepresentation(const QImage& image, double compressionQuality)
try {
    const QImage bitmap = bitmapPixels(image);
    if (bitmap.isNull())
        return {};
    static const QByteArray profile = QColorSpace(QColorSpace::SRgb).iccProfile();
    std::vector<QRgb> row(static_cast<std::size_t>(bitmap.width()));
    const int quality =
        static_cast<int>(std::lround(std::clamp(compressionQuality, 0.0, 1.0) * 100));
    QByteArray buffer(mostBytes(bitmap, profile.size()), Qt::Uninitialized);
    buffer.truncate(static_cast<qsizetype>(compress(bitmap, quality, row, profile, buffer)));
    buffer.squeeze();
    return buffer;
} catch (const std::bad_alloc&) {
    return {};
}

} // namespace pelmira
