#include "platform/image/Image.h"

#include "platform/base/Device.h"
#include "platform/image/ExifOrientation.h"
#include "platform/image/HeifImage.h"
#include "platform/image/JpegData.h"
#include "platform/image/PhotoFormats.h"
#include "platform/text/LocalizedStrings.h"

#include <QBuffer>
#include <QColorSpace>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include <algorithm>
#include <cstring>
#include <mutex>
#include <new>
#include <utility>

namespace pelmira {
namespace {

/// Formats of photos. Others that a reader may know are refused: drawings, and GIF and BMP, of
/// which Qt's readers take half a file for a whole one.
bool isPhotoFormat(const QByteArray& format)
{
    return std::any_of(photoFormats.begin(), photoFormats.end(), [&](const PhotoFormat& known) {
        return !known.reader.isEmpty() && known.reader == QLatin1String(format);
    });
}

std::variant<QByteArray, ImageProblem> readFile(const QString& path, std::int64_t limit)
{
    const QFileInfo info(path);
    if (!info.exists())
        return ImageProblem::Missing;
    if (!info.isFile()) // a pipe would keep us waiting, a device would never end
        return ImageProblem::NotAFile;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return ImageProblem::Unreadable;
    if (file.size() > limit)
        return ImageProblem::TooLarge;
    QByteArray bytes = file.read(file.size());
    if (file.error() != QFileDevice::NoError)
        return ImageProblem::Unreadable;
    if (bytes.isEmpty())
        return ImageProblem::Empty;
    return bytes;
}

/// The pixels alone. A picture's texts may tell the place and the camera.
QImage withoutTexts(const QImage& image)
{
    if (image.textKeys().isEmpty())
        return image;
    QImage plain(image.size(), image.format());
    if (!plain.isNull())
        std::memcpy(plain.bits(), image.constBits(), static_cast<std::size_t>(plain.sizeInBytes()));
    return plain;
}

std::variant<QImage, ImageProblem> readWithQt(QByteArray& content, const ImageLimits& limits)
{
    // The limits take the place of Qt's own, which would refuse a photo of 40 megapixels.
    static std::once_flag once;
    std::call_once(once, [] { QImageReader::setAllocationLimit(0); });

    QBuffer bytes(&content);
    bytes.open(QIODevice::ReadOnly);
    QImageReader reader(&bytes);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QByteArray format = reader.format();
    if (!isPhotoFormat(format))
        return ImageProblem::NotAnImage;
    if (format == "jpeg" && !isCompleteJpeg(content))
        return ImageProblem::Damaged;
    const QSize size = reader.size();
    if (!size.isValid())
        return ImageProblem::Damaged;
    if (size.isEmpty())
        return ImageProblem::Empty;
    if (!limits.allow(size))
        return ImageProblem::TooLarge;
    // Asked for before it reads: a reader that turns the picture itself says so.
    const bool isTurned = reader.transformation() != QImageIOHandler::TransformationNone;
    // Asked for before it reads, too: a reader without memory calls the file damaged.
    const QImage::Format form = reader.imageFormat();
    QImage image = form == QImage::Format_Invalid ? QImage() : QImage(size, form);
    if (image.isNull() && form != QImage::Format_Invalid)
        return ImageProblem::TooLarge;
    if (!reader.read(&image))
        return ImageProblem::Damaged;
    return isTurned ? image : turnedUpright(std::move(image), exifOrientation(content));
}

} // namespace

bool ImageLimits::allow(QSize size) const
{
    return std::max(size.width(), size.height()) <= longestImageSide &&
           std::int64_t{size.width()} * size.height() <= pixels;
}

ImageLimits ImageLimits::forMemory(std::uint64_t bytes)
{
    const auto memory = static_cast<std::int64_t>(bytes);
    return {std::min<std::int64_t>(memory / 2 / 16, 1 << 28), memory / 8};
}

std::variant<QImage, ImageProblem> loadImage(const QString& path)
{
    return loadImage(path, ImageLimits::forMemory(physicalMemory()));
}

std::variant<QImage, ImageProblem> loadImage(const QString& path, const ImageLimits& limits)
{
    try {
        auto content = readFile(path, limits.fileBytes);
        if (const auto* problem = std::get_if<ImageProblem>(&content))
            return *problem;
        return imageFromData(std::get<QByteArray>(std::move(content)), limits);
    } catch (const std::bad_alloc&) {
        return ImageProblem::TooLarge;
    }
}

std::variant<QImage, ImageProblem> imageFromData(QByteArray bytes, const ImageLimits& limits)
try {
    auto result = isHeif(bytes) ? readHeif(bytes, limits) : readWithQt(bytes, limits);
    QImage* image = std::get_if<QImage>(&result);
    if (!image)
        return result;
    *image = makeBitmapForm(std::move(*image));
    if (image->isNull())
        return ImageProblem::TooLarge; // other programs hold the memory
    return result;
} catch (const std::bad_alloc&) {
    return ImageProblem::TooLarge;
}

QString messageForProblem(ImageProblem problem, const QString& path)
{
    const auto key = [problem] {
        switch (problem) {
        case ImageProblem::Missing:
            return QStringLiteral("intake.error.missing");
        case ImageProblem::NotAFile:
            return QStringLiteral("intake.error.notAFile");
        case ImageProblem::Unreadable:
            return QStringLiteral("intake.error.unreadable");
        case ImageProblem::Empty:
            return QStringLiteral("intake.error.empty");
        case ImageProblem::NotAnImage:
            return QStringLiteral("intake.error.notAnImage");
        case ImageProblem::Damaged:
            break;
        case ImageProblem::TooLarge:
            return QStringLiteral("intake.error.tooLarge");
        }
        return QStringLiteral("intake.error.damaged");
    };
    return localized(key()).arg(QFileInfo(path).fileName());
}

QImage makeBitmapForm(QImage image)
{
    const QColorSpace colorSpace = image.colorSpace();
    if (colorSpace.isValid() && colorSpace != QColorSpace(QColorSpace::SRgb)) {
        // Straight alpha and the source's depth, so that the conversion loses least.
        const bool isDeep = image.depth() > 32 || image.format() == QImage::Format_Grayscale16;
        image.convertTo(isDeep ? QImage::Format_RGBA64 : QImage::Format_ARGB32);
        image.convertToColorSpace(QColorSpace::SRgb);
    }
    image.convertTo(QImage::Format_ARGB32_Premultiplied);
    image = withoutTexts(image);
    image.setDevicePixelRatio(1.0); // a file named "…@2x" has one of 2
    image.setColorSpace(QColorSpace::SRgb);
    return image;
}

QImage bitmapPixels(const QImage& image)
{
    const QColorSpace colorSpace = image.colorSpace();
    const bool isForm = image.format() == QImage::Format_ARGB32_Premultiplied &&
                        (!colorSpace.isValid() || colorSpace == QColorSpace(QColorSpace::SRgb));
    return isForm ? image : makeBitmapForm(image);
}

} // namespace pelmira
