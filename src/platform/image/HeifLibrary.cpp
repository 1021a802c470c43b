#include "platform/image/HeifLibrary.h"

#include <QLibrary>
#include <QString>

#include <optional>
#include <type_traits>

namespace pelmira {
namespace {

constexpr int binaryVersion = 1;

std::optional<HeifLibrary> load()
{
    QLibrary library(QStringLiteral("heif"), binaryVersion);
    HeifLibrary heif;
    bool isWhole = library.load();
    const auto resolve = [&](auto& function, const char* name) {
        function = reinterpret_cast<std::remove_reference_t<decltype(function)>>(
            isWhole ? library.resolve(name) : nullptr);
        isWhole = isWhole && function;
    };
    resolve(heif.check_filetype, "heif_check_filetype");
    resolve(heif.context_alloc, "heif_context_alloc");
    resolve(heif.context_encode_image, "heif_context_encode_image");
    resolve(heif.context_free, "heif_context_free");
    resolve(heif.context_get_encoder_for_format, "heif_context_get_encoder_for_format");
    resolve(heif.context_get_primary_image_handle, "heif_context_get_primary_image_handle");
    resolve(heif.context_read_from_memory_without_copy,
            "heif_context_read_from_memory_without_copy");
    resolve(heif.context_set_maximum_image_size_limit, "heif_context_set_maximum_image_size_limit");
    resolve(heif.context_write, "heif_context_write");
    resolve(heif.decode_image, "heif_decode_image");
    resolve(heif.decoding_options_alloc, "heif_decoding_options_alloc");
    resolve(heif.decoding_options_free, "heif_decoding_options_free");
    resolve(heif.encoder_release, "heif_encoder_release");
    resolve(heif.encoder_set_parameter, "heif_encoder_set_parameter");
    resolve(heif.encoding_options_alloc, "heif_encoding_options_alloc");
    resolve(heif.encoding_options_free, "heif_encoding_options_free");
    resolve(heif.has_compatible_brand, "heif_has_compatible_brand");
    resolve(heif.have_encoder_for_format, "heif_have_encoder_for_format");
    resolve(heif.image_add_plane, "heif_image_add_plane");
    resolve(heif.image_create, "heif_image_create");
    resolve(heif.image_get_bits_per_pixel_range, "heif_image_get_bits_per_pixel_range");
    resolve(heif.image_get_height, "heif_image_get_height");
    resolve(heif.image_get_plane, "heif_image_get_plane");
    resolve(heif.image_get_plane_readonly, "heif_image_get_plane_readonly");
    resolve(heif.image_get_width, "heif_image_get_width");
    resolve(heif.image_handle_get_height, "heif_image_handle_get_height");
    resolve(heif.image_handle_get_luma_bits_per_pixel, "heif_image_handle_get_luma_bits_per_pixel");
    resolve(heif.image_handle_get_nclx_color_profile, "heif_image_handle_get_nclx_color_profile");
    resolve(heif.image_handle_get_raw_color_profile, "heif_image_handle_get_raw_color_profile");
    resolve(heif.image_handle_get_raw_color_profile_size,
            "heif_image_handle_get_raw_color_profile_size");
    resolve(heif.image_handle_get_width, "heif_image_handle_get_width");
    resolve(heif.image_handle_has_alpha_channel, "heif_image_handle_has_alpha_channel");
    resolve(heif.image_handle_release, "heif_image_handle_release");
    resolve(heif.image_is_premultiplied_alpha, "heif_image_is_premultiplied_alpha");
    resolve(heif.image_release, "heif_image_release");
    resolve(heif.image_set_nclx_color_profile, "heif_image_set_nclx_color_profile");
    resolve(heif.init, "heif_init");
    resolve(heif.nclx_color_profile_alloc, "heif_nclx_color_profile_alloc");
    resolve(heif.nclx_color_profile_free, "heif_nclx_color_profile_free");
    if (!isWhole)
        return std::nullopt;
    heif.init(nullptr);
    return heif;
}

} // namespace

const HeifLibrary* HeifLibrary::shared()
{
    static const std::optional<HeifLibrary> library = load();
    return library ? &*library : nullptr;
}

} // namespace pelmira
