#pragma once

#include <libheif/heif.h>

namespace pelmira {

/// The functions of libheif that are used here, without their prefix. The library is loaded when it
/// is first needed: with its codecs it would delay the start of every run, and most runs need none.
struct HeifLibrary {
    /// Null if the library isn't installed: HEIF is then neither read nor written. Safe from any
    /// thread.
    static const HeifLibrary* shared();

    // clang-format off
    decltype(&::heif_check_filetype) check_filetype = nullptr;
    decltype(&::heif_context_alloc) context_alloc = nullptr;
    decltype(&::heif_context_encode_image) context_encode_image = nullptr;
    decltype(&::heif_context_free) context_free = nullptr;
    decltype(&::heif_context_get_encoder_for_format) context_get_encoder_for_format = nullptr;
    decltype(&::heif_context_get_primary_image_handle) context_get_primary_image_handle = nullptr;
    decltype(&::heif_context_read_from_memory_without_copy) context_read_from_memory_without_copy = nullptr;
    decltype(&::heif_context_set_maximum_image_size_limit) context_set_maximum_image_size_limit = nullptr;
    decltype(&::heif_context_write) context_write = nullptr;
    decltype(&::heif_decode_image) decode_image = nullptr;
    decltype(&::heif_decoding_options_alloc) decoding_options_alloc = nullptr;
    decltype(&::heif_decoding_options_free) decoding_options_free = nullptr;
    decltype(&::heif_encoder_release) encoder_release = nullptr;
    decltype(&::heif_encoder_set_parameter) encoder_set_parameter = nullptr;
    decltype(&::heif_encoding_options_alloc) encoding_options_alloc = nullptr;
    decltype(&::heif_encoding_options_free) encoding_options_free = nullptr;
    decltype(&::heif_has_compatible_brand) has_compatible_brand = nullptr;
    decltype(&::heif_have_encoder_for_format) have_encoder_for_format = nullptr;
    decltype(&::heif_image_add_plane) image_add_plane = nullptr;
    decltype(&::heif_image_create) image_create = nullptr;
    decltype(&::heif_image_get_bits_per_pixel_range) image_get_bits_per_pixel_range = nullptr;
    decltype(&::heif_image_get_height) image_get_height = nullptr;
    decltype(&::heif_image_get_plane) image_get_plane = nullptr;
    decltype(&::heif_image_get_plane_readonly) image_get_plane_readonly = nullptr;
    decltype(&::heif_image_get_width) image_get_width = nullptr;
    decltype(&::heif_image_handle_get_height) image_handle_get_height = nullptr;
    decltype(&::heif_image_handle_get_luma_bits_per_pixel) image_handle_get_luma_bits_per_pixel = nullptr;
    decltype(&::heif_image_handle_get_nclx_color_profile) image_handle_get_nclx_color_profile = nullptr;
    decltype(&::heif_image_handle_get_raw_color_profile) image_handle_get_raw_color_profile = nullptr;
    decltype(&::heif_image_handle_get_raw_color_profile_size) image_handle_get_raw_color_profile_size = nullptr;
    decltype(&::heif_image_handle_get_width) image_handle_get_width = nullptr;
    decltype(&::heif_image_handle_has_alpha_channel) image_handle_has_alpha_channel = nullptr;
    decltype(&::heif_image_handle_release) image_handle_release = nullptr;
    decltype(&::heif_image_is_premultiplied_alpha) image_is_premultiplied_alpha = nullptr;
    decltype(&::heif_image_release) image_release = nullptr;
    decltype(&::heif_image_set_nclx_color_profile) image_set_nclx_color_profile = nullptr;
    decltype(&::heif_init) init = nullptr;
    decltype(&::heif_nclx_color_profile_alloc) nclx_color_profile_alloc = nullptr;
    decltype(&::heif_nclx_color_profile_free) nclx_color_profile_free = nullptr;
    // clang-format on
};

} // namespace pelmira
