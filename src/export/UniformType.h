#pragma once

#include <QLatin1String>

namespace pelmira {

/// What a saved picture's bytes are, as MIME types.
inline constexpr QLatin1String kUTTypeJPEG("image/jpeg");
inline constexpr QLatin1String kUTTypePNG("image/png");
inline constexpr QLatin1String AVFileTypeHEIC("image/heic");

/// The suffix of a file that holds such bytes, without the dot.
inline QLatin1String suffixForType(QLatin1String uti)
{
    if (uti == kUTTypeJPEG)
        return QLatin1String("jpg");
    return uti == kUTTypePNG ? QLatin1String("png") : QLatin1String("heic");
}

} // namespace pelmira
