#pragma once

#include <QByteArray>
#include <QImage>

#include <libheif/heif.h>

#include <cstring>

namespace pelmira::test {

struct HeifForm {
    int bits = 8; ///< 8 or 10
    bool hasAlpha = false;
    int orientation = 1; ///< as in EXIF
    QByteArray iccProfile;
    int primaries = 0; ///< ISO/IEC 23091-2; 0 for no nclx
    int transfer = 0;
};

/// A HEIC file of the image. Empty if libheif can't write one here.
inline QByteArray encodedHeif(const QImage& source, const HeifForm& form)
{
    const bool isDeep = form.bits > 8;
    const QImage image =
        source.convertToFormat(isDeep ? QImage::Format_RGBA64 : QImage::Format_RGBA8888);
    heif_context* context = heif_context_alloc();
    heif_encoder* encoder = nullptr;
    heif_image* pixels = nullptr;
    QByteArray bytes;
    // Without alpha the fourth value of each pixel is left out.
    const int values = form.hasAlpha ? 4 : 3;
    const heif_chroma chroma =
        isDeep ? (form.hasAlpha ? heif_chroma_interleaved_RRGGBBAA_LE
                                : heif_chroma_interleaved_RRGGBB_LE)
               : (form.hasAlpha ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB);
    const auto isOk = [](const heif_error& error) { return error.code == heif_error_Ok; };
    if (isOk(heif_context_get_encoder_for_format(context, heif_compression_HEVC, &encoder)) &&
        isOk(heif_image_create(image.width(), image.height(), heif_colorspace_RGB, chroma,
                               &pixels)) &&
        isOk(heif_image_add_plane(pixels, heif_channel_interleaved, image.width(), image.height(),
                                  form.bits))) {
        int stride = 0;
        std::uint8_t* rows = heif_image_get_plane(pixels, heif_channel_interleaved, &stride);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                for (int i = 0; i < values; ++i) {
                    std::uint8_t* target = rows + qsizetype{y} * stride;
                    if (isDeep) {
                        const auto* from =
                            reinterpret_cast<const std::uint16_t*>(image.constScanLine(y));
                        const auto value =
                            static_cast<std::uint16_t>(from[x * 4 + i] >> (16 - form.bits));
                        std::memcpy(target + (x * values + i) * 2, &value, 2);
                    } else {
                        target[x * values + i] = image.constScanLine(y)[x * 4 + i];
                    }
                }
        if (!form.iccProfile.isEmpty())
            heif_image_set_raw_color_profile(pixels, "prof", form.iccProfile.constData(),
                                             static_cast<std::size_t>(form.iccProfile.size()));
        heif_encoding_options* options = heif_encoding_options_alloc();
        heif_color_profile_nclx* nclx = heif_nclx_color_profile_alloc();
        if (form.primaries != 0) {
            nclx->color_primaries = static_cast<heif_color_primaries>(form.primaries);
            nclx->transfer_characteristics =
                static_cast<heif_transfer_characteristics>(form.transfer);
            nclx->matrix_coefficients = heif_matrix_coefficients_ITU_R_BT_601_6;
            nclx->full_range_flag = 1;
            heif_image_set_nclx_color_profile(pixels, nclx);
            options->output_nclx_profile = nclx;
            options->macOS_compatibility_workaround_no_nclx_profile = 0;
        }
        options->image_orientation = static_cast<heif_orientation>(form.orientation);
        options->macOS_compatibility_workaround = 0;
        heif_encoder_set_lossy_quality(encoder, 95);
        heif_encoder_set_parameter(encoder, "chroma", "444");
        heif_writer writer{};
        writer.writer_api_version = 1;
        writer.write = [](heif_context*, const void* data, std::size_t size, void* target) {
            static_cast<QByteArray*>(target)->append(static_cast<const char*>(data),
                                                     static_cast<qsizetype>(size));
            return heif_error{heif_error_Ok, heif_suberror_Unspecified, ""};
        };
        if (!isOk(heif_context_encode_image(context, pixels, encoder, options, nullptr)) ||
            !isOk(heif_context_write(context, &writer, &bytes)))
            bytes.clear();
        heif_nclx_color_profile_free(nclx);
        heif_encoding_options_free(options);
    }
    if (pixels)
        heif_image_release(pixels);
    if (encoder)
        heif_encoder_release(encoder);
    heif_context_free(context);
    return bytes;
}

} // namespace pelmira::test
