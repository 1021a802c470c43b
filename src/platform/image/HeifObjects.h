#pragma once

#include "platform/image/HeifLibrary.h"

#include <memory>

namespace pelmira {

// Objects of libheif, each with the function that frees it.

template <typename T>
using HeifObject = std::unique_ptr<T, void (*)(T*)>;
template <typename T>
using HeifConstObject = std::unique_ptr<T, void (*)(const T*)>;

using HeifContext = HeifObject<heif_context>;
using HeifEncoderObject = HeifObject<heif_encoder>;
using HeifNclx = HeifObject<heif_color_profile_nclx>;
using HeifDecodingOptions = HeifObject<heif_decoding_options>;
using HeifEncodingOptions = HeifObject<heif_encoding_options>;
using HeifHandle = HeifConstObject<heif_image_handle>;
using HeifPixels = HeifConstObject<heif_image>;

} // namespace pelmira
