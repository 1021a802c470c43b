#pragma once

#include <QByteArray>
#include <QImage>

#include <libheif/heif.h>

#include <cstring>
#include <memory>

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
    const auto isOk = [](const heif_error& error) { return error.code == heif_error_Ok; };
    const auto owned = [](auto* thing, auto release) {
        return std::unique_ptr<std::remove_pointer_t<decltype(thing)>, decltype(release)>(thing,
                                                                                          release);
    };
    const auto context = owned(heif_context_alloc(), heif_context_free);
    heif_encoder* made = nullptr;
    if (!isOk(heif_context_get_encoder_for_format(context.get(), heif_compression_HEVC, &made)))
        return {};
    const auto encoder = owned(made, heif_encoder_release);

    const QImage image = source.convertToFormat(QImage::Format_RGBA64);
    const bool isDeep = form.bits > 8;
    const int values = form.hasAlpha ? 4 : 3; // without alpha the fourth of each pixel is left out
    constexpr heif_chroma chromas[2][2] = {
        {heif_chroma_interleaved_RGB, heif_chroma_interleaved_RGBA},
        {heif_chroma_interleaved_RRGGBB_LE, heif_chroma_interleaved_RRGGBBAA_LE}};
    const heif_chroma chroma = chromas[isDeep][form.hasAlpha];
    heif_image* plane = nullptr;
    heif_image_create(image.width(), image.height(), heif_colorspace_RGB, chroma, &plane);
    const auto pixels = owned(plane, heif_image_release);
    heif_image_add_plane(plane, heif_channel_interleaved, image.width(), image.height(), form.bits);
    int stride = 0;
    std::uint8_t* rows = heif_image_get_plane(plane, heif_channel_interleaved, &stride);
    for (int y = 0; y < image.height(); ++y) {
        const auto* from = reinterpret_cast<const std::uint16_t*>(image.constScanLine(y));
        for (int i = 0; i < image.width() * values; ++i) {
            const auto value = std::uint16_t(from[i / values * 4 + i % values] >> (16 - form.bits));
            std::memcpy(rows + qsizetype{y} * stride + i * (isDeep ? 2 : 1), &value,
                        isDeep ? 2 : 1);
        }
    }
    if (!form.iccProfile.isEmpty())
        heif_image_set_raw_color_profile(plane, "prof", form.iccProfile.constData(),
                                         static_cast<std::size_t>(form.iccProfile.size()));
    const auto options = owned(heif_encoding_options_alloc(), heif_encoding_options_free);
    const auto nclx = owned(heif_nclx_color_profile_alloc(), heif_nclx_color_profile_free);
    if (form.primaries != 0) {
        nclx->color_primaries = static_cast<heif_color_primaries>(form.primaries);
        nclx->transfer_characteristics = static_cast<heif_transfer_characteristics>(form.transfer);
        nclx->matrix_coefficients = heif_matrix_coefficients_ITU_R_BT_601_6;
        nclx->full_range_flag = 1;
        heif_image_set_nclx_color_profile(plane, nclx.get());
        options->output_nclx_profile = nclx.get();
        options->macOS_compatibility_workaround_no_nclx_profile = 0;
    }
    options->image_orientation = static_cast<heif_orientation>(form.orientation);
    options->macOS_compatibility_workaround = 0;
    heif_encoder_set_lossy_quality(made, 95);
    heif_encoder_set_parameter(made, "chroma", "444");
    heif_writer writer{1, [](heif_context*, const void* data, std::size_t size, void* target) {
                           static_cast<QByteArray*>(target)->append(static_cast<const char*>(data),
                                                                    static_cast<qsizetype>(size));
                           return heif_error{heif_error_Ok, heif_suberror_Unspecified, ""};
                       }};
    QByteArray bytes;
    const bool isWritten =
        isOk(heif_context_encode_image(context.get(), plane, made, options.get(), nullptr)) &&
        isOk(heif_context_write(context.get(), &writer, &bytes));
    return isWritten ? bytes : QByteArray();
}

} // namespace pelmira::test
