#include "platform/encode/HeifEncoder.h"

#include "platform/encode/YCbCrPlanes.h"
#include "platform/image/HeifObjects.h"
#include "platform/image/Image.h"

#include <QSize>

#include <cstddef>
#include <new>

namespace pelmira {
namespace {

struct Parameter {
    const char* name;
    const char* value;
};
// The quickest preset takes a third of the next one's time. It leaves out the spreading of bits by
// what the eye sees, which costs little and brings the quality back.
constexpr Parameter parameters[] = {
    {"preset", "ultrafast"}, {"x265:aq-mode", "2"}, {"x265:aq-strength", "1.0"}};

bool isOk(const heif_error& error)
{
    return error.code == heif_error_Ok;
}

HeifEncoderObject hevcEncoder(const HeifLibrary& heif, heif_context* context)
{
    heif_encoder* raw = nullptr;
    const bool isMade =
        isOk(heif.context_get_encoder_for_format(context, heif_compression_HEVC, &raw));
    HeifEncoderObject encoder(raw, heif.encoder_release);
    if (!isMade)
        encoder.reset();
    else // an encoder that doesn't know them does without
        for (const auto& [name, value] : parameters)
            (void)heif.encoder_set_parameter(encoder.get(), name, value);
    return encoder;
}

/// Planes as the encoder takes them: from pixels the library would make them itself, in three more
/// copies of the picture.
HeifPixels pixelsOf(const HeifLibrary& heif, const QImage& bitmap)
{
    heif_image* raw = nullptr;
    const QSize size = bitmap.size();
    const QSize chroma((size.width() + 1) / 2, (size.height() + 1) / 2);
    bool isMade = isOk(heif.image_create(size.width(), size.height(), heif_colorspace_YCbCr,
                                         heif_chroma_420, &raw));
    HeifPixels pixels(raw, heif.image_release);
    const auto plane = [&](heif_channel channel, QSize planeSize) {
        YCbCrPlanes::Plane made;
        int stride = 0;
        isMade = isMade &&
                 isOk(heif.image_add_plane(raw, channel, planeSize.width(), planeSize.height(), 8));
        if (isMade)
            made.values = heif.image_get_plane(raw, channel, &stride);
        isMade = isMade && made.values;
        made.stride = stride;
        return made;
    };
    const YCbCrPlanes planes{plane(heif_channel_Y, size), plane(heif_channel_Cb, chroma),
                             plane(heif_channel_Cr, chroma), plane(heif_channel_Alpha, size)};
    if (!isMade)
        return {nullptr, heif.image_release};
    splitIntoPlanes(bitmap, planes);
    return pixels;
}

/// What ISO/IEC 23091-2 calls the primaries of BT.709 with the curve of IEC 61966-2-1: sRGB.
HeifNclx sRgb(const HeifLibrary& heif)
{
    HeifNclx profile(heif.nclx_color_profile_alloc(), heif.nclx_color_profile_free);
    if (profile) {
        profile->color_primaries = heif_color_primaries_ITU_R_BT_709_5;
        profile->transfer_characteristics = heif_transfer_characteristic_IEC_61966_2_1;
        profile->matrix_coefficients = heif_matrix_coefficients_ITU_R_BT_601_6;
        profile->full_range_flag = 1;
    }
    return profile;
}

heif_error append(heif_context*, const void* data, std::size_t size, void* bytes)
try {
    static_cast<QByteArray*>(bytes)->append(static_cast<const char*>(data),
                                            static_cast<qsizetype>(size));
    return {heif_error_Ok, heif_suberror_Unspecified, ""};
} catch (const std::bad_alloc&) { // nothing may be thrown through the library
    return {heif_error_Memory_allocation_error, heif_suberror_Unspecified, ""};
}

} // namespace

bool canEncodeHeif()
{
    const HeifLibrary* heif = HeifLibrary::shared();
    return heif && heif->have_encoder_for_format(heif_compression_HEVC) != 0;
}

QByteArray heifRepresentation(const QImage& image)
try {
    const HeifLibrary* library = HeifLibrary::shared();
    const QImage bitmap = library ? bitmapPixels(image) : QImage();
    if (bitmap.isNull())
        return {};
    const HeifLibrary& heif = *library;
    const HeifContext context(heif.context_alloc(), heif.context_free);
    const HeifEncoderObject encoder = hevcEncoder(heif, context.get());
    const HeifPixels pixels = pixelsOf(heif, bitmap);
    const HeifNclx profile = sRgb(heif);
    const HeifEncodingOptions options(heif.encoding_options_alloc(), heif.encoding_options_free);
    if (!context || !encoder || !pixels || !profile || !options ||
        !isOk(heif.image_set_nclx_color_profile(const_cast<heif_image*>(pixels.get()),
                                                profile.get())))
        return {};
    options->output_nclx_profile = profile.get();
    options->macOS_compatibility_workaround_no_nclx_profile = 0;
    if (!isOk(heif.context_encode_image(context.get(), pixels.get(), encoder.get(), options.get(),
                                        nullptr)))
        return {};
    heif_writer writer{};
    writer.writer_api_version = 1;
    writer.write = append;
    QByteArray bytes;
    return isOk(heif.context_write(context.get(), &writer, &bytes)) ? bytes : QByteArray();
} catch (const std::bad_alloc&) {
    return {};
}

} // namespace pelmira
