#pragma once

#include <QLatin1String>
#include <QStringList>

#include <array>

namespace pelmira {

/// A kind of photo files that can be read.
struct PhotoFormat {
    QLatin1String mimeType;
    QLatin1String reader; ///< Qt's plugin for it; none for what libheif reads
    std::array<QLatin1String, 2> suffixes;
};

/// The one that keeps most of a picture first.
inline constexpr std::array<PhotoFormat, 7> photoFormats{{
    {QLatin1String("image/png"), QLatin1String("png"), {QLatin1String("png")}},
    {QLatin1String("image/tiff"),
     QLatin1String("tiff"),
     {QLatin1String("tif"), QLatin1String("tiff")}},
    {QLatin1String("image/heic"), {}, {QLatin1String("heic"), QLatin1String("hif")}},
    {QLatin1String("image/heif"), {}, {QLatin1String("heif")}},
    {QLatin1String("image/avif"), {}, {QLatin1String("avif")}},
    {QLatin1String("image/webp"), QLatin1String("webp"), {QLatin1String("webp")}},
    {QLatin1String("image/jpeg"),
     QLatin1String("jpeg"),
     {QLatin1String("jpg"), QLatin1String("jpeg")}},
}};

/// How the names of photo files end, in lower case and without the dot.
inline QStringList photoSuffixes()
{
    QStringList suffixes;
    for (const PhotoFormat& format : photoFormats) {
        for (const QLatin1String suffix : format.suffixes) {
            if (!suffix.isEmpty())
                suffixes << suffix;
        }
    }
    return suffixes;
}

} // namespace pelmira
