#include "platform/image/HeifImage.h"

#include "platform/image/HeifCanvas.h"
#include "platform/image/HeifObjects.h"

#include <QColorSpace>
#include <QPointF>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <limits>

namespace pelmira {
namespace {

constexpr qsizetype signatureLength = 12; // size, "ftyp", main brand
constexpr std::size_t largestProfile = 16 << 20;

ImageProblem problemFor(const heif_error& error)
{
    if (error.code == heif_error_Unsupported_filetype)
        return ImageProblem::NotAnImage;
    if (error.code == heif_error_Memory_allocation_error ||
        error.subcode == heif_suberror_Security_limit_exceeded)
        return ImageProblem::TooLarge;
    return ImageProblem::Damaged;
}

/// The curves that displays undo; the camera's curve of video is shown as if it were sRGB's.
QColorSpace withTransfer(const heif_color_profile_nclx& nclx)
{
    const auto at = [](float x, float y) {
        return QPointF(static_cast<double>(x), static_cast<double>(y));
    };
    const auto make = [&](QColorSpace::TransferFunction function, float gamma = 0.0F) {
        return QColorSpace(at(nclx.color_primary_white_x, nclx.color_primary_white_y),
                           at(nclx.color_primary_red_x, nclx.color_primary_red_y),
                           at(nclx.color_primary_green_x, nclx.color_primary_green_y),
                           at(nclx.color_primary_blue_x, nclx.color_primary_blue_y), function,
                           gamma);
    };
    switch (nclx.transfer_characteristics) {
    case heif_transfer_characteristic_linear:
        return make(QColorSpace::TransferFunction::Linear);
    case heif_transfer_characteristic_ITU_R_BT_470_6_System_M:
        return make(QColorSpace::TransferFunction::Gamma, 2.2F);
    case heif_transfer_characteristic_ITU_R_BT_470_6_System_B_G:
        return make(QColorSpace::TransferFunction::Gamma, 2.8F);
    default:
        return make(QColorSpace::TransferFunction::SRgb);
    }
}

QColorSpace colorSpaceOf(const HeifLibrary& heif, const heif_image_handle* handle)
{
    const std::size_t length = heif.image_handle_get_raw_color_profile_size(handle);
    if (length > 0 && length <= largestProfile) {
        QByteArray profile(static_cast<qsizetype>(length), '\0');
        if (heif.image_handle_get_raw_color_profile(handle, profile.data()).code == heif_error_Ok)
            return QColorSpace::fromIccProfile(profile);
    }
    heif_color_profile_nclx* raw = nullptr;
    const heif_error error = heif.image_handle_get_nclx_color_profile(handle, &raw);
    const HeifNclx nclx(raw, heif.nclx_color_profile_free);
    if (error.code != heif_error_Ok || !nclx ||
        nclx->color_primaries == heif_color_primaries_unspecified)
        return {};
    return withTransfer(*nclx);
}

/// Stretches whole numbers of so many bits to 16, in place.
void widenTo16Bits(QImage& image, int bits)
{
    for (int y = 0; y < image.height(); ++y) {
        auto* values = reinterpret_cast<std::uint16_t*>(image.scanLine(y));
        std::transform(
            values, values + qsizetype{4} * image.width(), values, [bits](unsigned value) {
                return static_cast<std::uint16_t>(value << (16 - bits) | value >> (2 * bits - 16));
            });
    }
}

QImage::Format formatFor(bool isDeep, bool isPremultiplied)
{
    if (isDeep)
        return isPremultiplied ? QImage::Format_RGBA64_Premultiplied : QImage::Format_RGBA64;
    return isPremultiplied ? QImage::Format_RGBA8888_Premultiplied : QImage::Format_RGBA8888;
}

QImage copyOf(const HeifLibrary& heif, const heif_image* decoded, QImage::Format format)
{
    const QSize size(heif.image_get_width(decoded, heif_channel_interleaved),
                     heif.image_get_height(decoded, heif_channel_interleaved));
    int stride = 0;
    const std::uint8_t* rows =
        heif.image_get_plane_readonly(decoded, heif_channel_interleaved, &stride);
    QImage image(size, format);
    const qsizetype rowLength = qsizetype{image.width()} * image.depth() / 8;
    if (image.isNull() || !rows || stride < rowLength)
        return {};
    for (int y = 0; y < image.height(); ++y)
        std::memcpy(image.scanLine(y), rows + qsizetype{y} * stride,
                    static_cast<std::size_t>(rowLength));
    return image;
}

std::variant<QImage, ImageProblem> decode(const HeifLibrary& heif, const heif_image_handle* handle)
{
    const int bits = heif.image_handle_get_luma_bits_per_pixel(handle);
    const bool isDeep = bits > 8 && bits <= 16;
    const HeifDecodingOptions options(heif.decoding_options_alloc(), heif.decoding_options_free);
    options->strict_decoding = true;
    heif_image* raw = nullptr;
    const heif_error error = heif.decode_image(
        handle, &raw, heif_colorspace_RGB,
        isDeep ? heif_chroma_interleaved_RRGGBBAA_LE : heif_chroma_interleaved_RGBA, options.get());
    const HeifPixels decoded(raw, heif.image_release);
    if (error.code != heif_error_Ok)
        return problemFor(error);
    if (!decoded)
        return ImageProblem::Damaged;
    const bool isPremultiplied = heif.image_handle_has_alpha_channel(handle) != 0 &&
                                 heif.image_is_premultiplied_alpha(decoded.get()) != 0;
    QImage image = copyOf(heif, decoded.get(), formatFor(isDeep, isPremultiplied));
    if (image.isNull())
        return ImageProblem::Damaged;
    if (isDeep)
        widenTo16Bits(image, std::max(heif.image_get_bits_per_pixel_range(decoded.get(),
                                                                          heif_channel_interleaved),
                                      8));
    return image;
}

} // namespace

bool isHeif(QByteArrayView bytes)
{
    if (bytes.size() < signatureLength)
        return false;
    // The library is loaded for what looks like its format only.
    const HeifLibrary* library = bytes.sliced(4, 4) == "ftyp" ? HeifLibrary::shared() : nullptr;
    if (!library)
        return false;
    const HeifLibrary& heif = *library;
    const auto* data = reinterpret_cast<const std::uint8_t*>(bytes.data());
    const int length = static_cast<int>(std::min<qsizetype>(bytes.size(), 4096));
    const heif_filetype_result type = heif.check_filetype(data, length);
    if (type == heif_filetype_yes_supported)
        return true;
    return type == heif_filetype_yes_unsupported &&
           heif.has_compatible_brand(data, length, "mif1") == 1;
}

std::variant<QImage, ImageProblem> readHeif(QByteArrayView bytes, const ImageLimits& limits)
{
    const HeifLibrary* library = HeifLibrary::shared();
    if (!library)
        return ImageProblem::NotAnImage;
    const HeifLibrary& heif = *library;
    const HeifContext context(heif.context_alloc(), heif.context_free);
    if (!context)
        return ImageProblem::TooLarge;
    heif.context_set_maximum_image_size_limit(context.get(), longestImageSide);
    heif_error error = heif.context_read_from_memory_without_copy(
        context.get(), bytes.data(), static_cast<std::size_t>(bytes.size()), nullptr);
    if (error.code != heif_error_Ok)
        return problemFor(error);
    heif_image_handle* raw = nullptr;
    error = heif.context_get_primary_image_handle(context.get(), &raw);
    const HeifHandle handle(raw, heif.image_handle_release);
    if (error.code != heif_error_Ok)
        return problemFor(error);
    const QSize size(heif.image_handle_get_width(handle.get()),
                     heif.image_handle_get_height(handle.get()));
    if (size.isEmpty())
        return ImageProblem::Empty;
    if (!limits.allow(size) ||
        largestHeifCanvas(bytes) > static_cast<std::uint64_t>(limits.pixels))
        return ImageProblem::TooLarge;
    auto result = decode(heif, handle.get());
    QImage* image = std::get_if<QImage>(&result);
    if (!image)
        return result;
    if (image->size() != size) // what is coded isn't what the file says
        return ImageProblem::Damaged;
    image->setColorSpace(colorSpaceOf(heif, handle.get()));
    return result;
}

} // namespace pelmira
