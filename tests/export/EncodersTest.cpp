#include "export/SaveImageFormatter.h"
#include "platform/encode/HeifEncoder.h"
#include "platform/encode/JpegEncoder.h"
#include "platform/encode/PngEncoder.h"
#include "support/Test.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageReader>

#include <libheif/heif.h>

namespace pelmira {
namespace {

/// A disc with a soft edge on nothing: a colour ramp with some noise, as a photo has it.
QImage cutOut(int width, int height)
{
    std::mt19937 random(1);
    const auto colourAt = [&](int x, int y) {
        const double distance = std::hypot(x - width / 2.0, y - height / 2.0);
        const double seen = std::min(width, height) * 0.45 - distance;
        const int alpha = std::clamp(static_cast<int>(seen * 60.0), 0, 255);
        const int noise = static_cast<int>(random() % 5);
        return qRgba(80 + 100 * x / width, 60 + 120 * y / height, 90 + noise, alpha);
    };
    return paintedImage({width, height}, colourAt, QImage::Format_ARGB32)
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/// The largest difference of premultiplied colours and of alpha: what can be seen.
int largestDifference(const QImage& one, const QImage& other)
{
    // As they are stored: what is drawn on black is what is compared.
    const auto stored = [](const QImage& image) {
        QImage pixels = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
        pixels.reinterpretAsFormat(QImage::Format_ARGB32);
        return pixels;
    };
    return one.size() == other.size() ? test::difference(stored(one), stored(other)).greatest : 255;
}

QImage readBack(QByteArray bytes, const char* format)
{
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, format);
    const QImage image = reader.read();
    EXPECT_TRUE(image.textKeys().isEmpty());
    EXPECT_EQ(image.colorSpace(), QColorSpace(QColorSpace::SRgb));
    return image;
}

TEST(Encoders, APngGivesBackEveryPixelAndTellsNothingOfWhatWasRemoved)
{
    // One row, one column, and enough rows for many parts that are packed apart.
    for (const QSize size :
         {QSize(1, 1), QSize(3000, 1), QSize(1, 3000), QSize(401, 333), QSize(1500, 1301)}) {
        QImage image = cutOut(size.width(), size.height());
        image.setText(QStringLiteral("exif:GPSLatitude"), QStringLiteral("52/1, 31/1, 12/1"));
        const QImage back = readBack(pngRepresentation(image), "png");
        ASSERT_LE(largestDifference(image, back), 1) << size.width();
        if (qAlpha(image.pixel(0, 0)) == 0) {
            EXPECT_EQ(back.pixel(0, 0), 0U);
        }
    }
    EXPECT_TRUE(pngRepresentation({}).isEmpty());
}

TEST(Encoders, AJpegKeepsColoursSharpAndSaysThatTheyAreSRgb)
{
    const QImage flat = imageWithBGColor(cutOut(401, 333), Qt::red);
    EXPECT_EQ(flat.pixel(0, 0), qRgb(255, 0, 0));
    EXPECT_LE(largestDifference(flat, readBack(jpegRepresentation(flat, 0.9), "jpeg")), 24);
    EXPECT_LE(largestDifference(flat, readBack(jpegRepresentation(flat, 1.0), "jpeg")), 6);
}

/// By the library's own functions, called directly.
QImage readHeifBack(const QByteArray& bytes)
{
    heif_context* context = heif_context_alloc();
    heif_image_handle* handle = nullptr;
    heif_image* pixels = nullptr;
    heif_context_read_from_memory(context, bytes.constData(), std::size_t(bytes.size()), nullptr);
    heif_context_get_primary_image_handle(context, &handle);
    heif_decode_image(handle, &pixels, heif_colorspace_RGB, heif_chroma_interleaved_RGBA, nullptr);
    int stride = 0;
    const std::uint8_t* rows =
        heif_image_get_plane_readonly(pixels, heif_channel_interleaved, &stride);
    const QImage image =
        QImage(rows, heif_image_handle_get_width(handle), heif_image_handle_get_height(handle),
               stride, QImage::Format_RGBA8888)
            .copy();
    EXPECT_EQ(heif_image_handle_get_number_of_metadata_blocks(handle, nullptr), 0);
    heif_color_profile_nclx* profile = nullptr;
    heif_image_handle_get_nclx_color_profile(handle, &profile);
    EXPECT_EQ(profile->transfer_characteristics, heif_transfer_characteristic_IEC_61966_2_1);
    heif_nclx_color_profile_free(profile);
    heif_image_release(pixels);
    heif_image_handle_release(handle);
    heif_context_free(context);
    return image;
}

TEST(Encoders, AHeifHasItsExactSizeItsTransparencyAndNoDarkEdge)
{
    if (!SaveImageFormatter::canWriteHEIF())
        GTEST_SKIP() << "no encoder for HEVC";
    const QImage image = cutOut(401, 333);
    const QImage back = readHeifBack(SaveImageFormatter::heifDataWithImage(image));
    EXPECT_LE(largestDifference(image, back), 40);
    EXPECT_GT(qGreen(back.pixel(200, 2)), 40); // outside the disc its colours go on
    EXPECT_TRUE(SaveImageFormatter::heifDataWithImage({}).isEmpty());
}

TEST(SaveImageFormatter, ASliverIsPaddedAndASquareIsNot)
{
    for (const auto& [size, canvas] : {std::pair(QSize(1000, 100), QSize(1000, 500)),
                                       {QSize(100, 1000), QSize(400, 1000)},
                                       {QSize(300, 300), QSize(400, 300)},
                                       {QSize(600, 900), QSize(600, 900)},
                                       {QSize(100, 1500), QSize(500, 1500)}}) {
        const QImage image = plainImage(size, Qt::green);
        const QImage padded = SaveImageFormatter::formatedPngImageForSaving(image);
        ASSERT_EQ(padded.size(), canvas);
        const QPoint origin((canvas.width() - size.width()) / 2,
                            (canvas.height() - size.height()) / 2);
        EXPECT_EQ(padded.copy(QRect(origin, size)), image);
        if (origin != QPoint(0, 0)) {
            EXPECT_EQ(padded.pixel(0, 0), 0U);
            EXPECT_EQ(padded.pixel(canvas.width() - 1, canvas.height() - 1), 0U);
        }
    }
    const QImage square = plainImage({500, 500}, Qt::green);
    EXPECT_EQ(SaveImageFormatter::formatedPngImageForSaving(square).cacheKey(), square.cacheKey());
    EXPECT_EQ(lowResolution(cutOut(1600, 1200)).size(), QSize(640, 480));
}

} // namespace
} // namespace pelmira
