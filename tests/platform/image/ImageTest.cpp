#include "platform/image/Image.h"
#include "platform/image/ExifOrientation.h"
#include "support/Test.h"

#include <QColorSpace>
#include <QDataStream>

namespace pelmira {

void PrintTo(ImageProblem problem, std::ostream* out)
{
    *out << messageForProblem(problem, QStringLiteral("The file")).toStdString();
}

namespace {

constexpr ImageLimits wideLimits{1 << 28, 1 << 28};

/// Colours that tell every pixel's place, smooth enough for JPEG.
QImage sampleImage(int width = 48, int height = 32)
{
    return paintedImage(
        {width, height}, [=](int x, int y) { return qRgb(x * 255 / width, y * 255 / height, 128); },
        QImage::Format_RGB32);
}

template <class... Numbers>
QByteArray packed(QDataStream::ByteOrder order, Numbers... numbers)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setByteOrder(order);
    (stream << ... << numbers);
    return bytes;
}

const auto bigEndian = [](auto... n) { return packed(QDataStream::BigEndian, n...); };
const auto littleEndian = [](auto... n) { return packed(QDataStream::LittleEndian, n...); };
struct ImageTest : testing::Test {
    QImage imageIn(const char* name, const QByteArray& bytes) const
    {
        const auto loaded = loadImage(folder.write(name, bytes));
        const QImage* image = std::get_if<QImage>(&loaded);
        EXPECT_TRUE(image) << name;
        return image ? *image : QImage();
    }

    ImageProblem problemIn(const char* name, const QByteArray& bytes,
                           const ImageLimits& limits = wideLimits) const
    {
        return problemAt(folder.write(name, bytes), limits);
    }

    ImageProblem problemAt(const QString& path, const ImageLimits& limits = wideLimits) const
    {
        const auto loaded = loadImage(path, limits);
        const auto* problem = std::get_if<ImageProblem>(&loaded);
        if (!problem) {
            ADD_FAILURE() << "opened: " << qPrintable(path);
            return {};
        }
        EXPECT_TRUE(messageForProblem(*problem, path).contains(QFileInfo(path).fileName()));
        return *problem;
    }

    const TemporaryFolder folder;
};

quint32 crc(const QByteArray& bytes)
{
    quint32 sum = ~0U;
    for (const char byte : bytes) {
        sum ^= static_cast<uchar>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum >> 1) ^ ((sum & 1) ? 0xEDB88320U : 0);
    }
    return ~sum;
}

QByteArray exifBlock(quint16 orientation, QDataStream::ByteOrder order = QDataStream::BigEndian)
{
    return (order == QDataStream::BigEndian ? "MM" : "II") +
           packed(order, quint16{42}, quint32{8}, quint16{1}, quint16{0x112}, quint16{3},
                  quint32{1}, orientation, quint16{0}, quint32{0});
}

QByteArray jpegTurned(QByteArray jpeg, quint16 orientation)
{
    const QByteArray exif = "Exif"_ba.append(2, '\0') + exifBlock(orientation);
    return jpeg.insert(2, "\xff\xe1" + bigEndian(static_cast<quint16>(exif.size() + 2)) + exif);
}

QByteArray pngTurned(QByteArray png, quint16 orientation)
{
    const QByteArray exif = "eXIf" + exifBlock(orientation);
    return png.insert(33, bigEndian(quint32(exif.size() - 4)) + exif + bigEndian(crc(exif)));
}

// With the other byte order, and the chunk before all others that tells what follows.
QByteArray webpTurned(QByteArray webp, QSize size, quint16 orientation)
{
    const QByteArray exif = exifBlock(orientation, QDataStream::LittleEndian);
    webp.insert(12, "VP8X" + littleEndian(quint32{10}, quint32{8}) +
                        littleEndian(quint32(size.width() - 1)).first(3) +
                        littleEndian(quint32(size.height() - 1)).first(3));
    webp += "EXIF" + littleEndian(quint32(exif.size())) + exif;
    return webp.replace(4, 4, littleEndian(quint32(webp.size() - 8)));
}

TEST_F(ImageTest, EveryExifOrientationComesOutUpright)
{
    const QImage upright = sampleImage();
    const int right = upright.width() - 1;
    const int bottom = upright.height() - 1;
    for (quint16 orientation = 1; orientation <= 8; ++orientation) {
        const auto stored = paintedImage(
            orientation < 5 ? upright.size() : upright.size().transposed(),
            [&](int column, int row) {
                // Which edges of the upright picture the stored rows and columns begin at.
                const QPoint at[] = {{column, row},
                                     {right - column, row},
                                     {right - column, bottom - row},
                                     {column, bottom - row},
                                     {row, column},
                                     {right - row, column},
                                     {right - row, bottom - column},
                                     {row, bottom - column}};
                return upright.pixel(at[orientation - 1]);
            },
            QImage::Format_RGB32);
        for (const QByteArray& file :
             {jpegTurned(encoded(stored, "jpg"), orientation),
              pngTurned(encoded(stored, "png"), orientation),
              webpTurned(encoded(stored, "webp"), stored.size(), orientation)}) {
            const QImage image = imageIn("turned", file);
            ASSERT_EQ(image.size(), upright.size()) << orientation << file.constData();
            for (const QPoint point : {QPoint(4, 4), QPoint(right - 4, 4), QPoint(4, bottom - 4)}) {
                EXPECT_LE(farthest(image.pixel(point), upright.pixel(point)), 12) << orientation;
            }
        }
    }
}

TEST_F(ImageTest, ABrokenExifBlockTurnsNothing)
{
    const QByteArray whole = pngTurned(encoded(sampleImage(), "png"), 6);
    EXPECT_EQ(exifOrientation(whole), 6);
    EXPECT_EQ(exifOrientation(pngTurned(encoded(sampleImage(), "png"), 9)), 1);
    for (qsizetype length = 0; length < 33 + 8 + 18; ++length) // just before the number
        EXPECT_EQ(exifOrientation(whole.first(length)), 1) << length;
    for (const qsizetype at : {41, 45, 49, 51}) { // order, directory, count, tag
        QByteArray damaged = whole;
        EXPECT_EQ(exifOrientation(damaged.replace(at, 4, "\xff\xff\xff\xf0")), 1) << at;
    }
}

TEST_F(ImageTest, EveryPixelFormatBecomesTheBitmapForm)
{
    QImage straight(5, 3, QImage::Format_ARGB32);
    straight.fill(QColor(200, 100, 50, 128));
    QImage palette(straight.size(), QImage::Format_Indexed8);
    palette.setColorTable({straight.pixel(0, 0)});
    palette.fill(0);
    for (const QImage& source :
         {straight, straight.convertToFormat(QImage::Format_RGBA64), palette}) {
        const QImage image = imageIn("alpha.png", encoded(source, "png"));
        ASSERT_EQ(image.format(), QImage::Format_ARGB32_Premultiplied);
        const auto* pixel = image.constScanLine(2);
        EXPECT_NEAR(pixel[0], 25, 1);
        EXPECT_NEAR(pixel[1], 50, 1);
        EXPECT_NEAR(pixel[2], 100, 1);
        EXPECT_EQ(pixel[3], 128);
    }
    straight.fill(QColor(120, 120, 120));
    for (const auto format : {QImage::Format_Grayscale8, QImage::Format_Grayscale16}) {
        const QImage image = imageIn("grey.png", encoded(straight.convertToFormat(format), "png"));
        EXPECT_EQ(image.pixel(4, 2), qRgb(120, 120, 120));
    }
}

TEST_F(ImageTest, AColourProfileIsConverted)
{
    // Adobe RGB's primaries are sRGB's but for green: R' = 1.398 R - 0.398 G, G' = G,
    // B' = 1.043 B - 0.043 G in linear light, its gamma 563 / 256.
    QImage adobe(32, 32, QImage::Format_RGB32);
    adobe.fill(QColor(200, 100, 50));
    adobe.setColorSpace(QColorSpace::AdobeRgb);
    for (const char* format : {"png", "jpg", "webp"}) {
        const QImage image = imageIn("adobe", encoded(adobe, format));
        EXPECT_LE(farthest(image.pixel(9, 9), qRgb(227, 100, 42)), 5) << format;
        EXPECT_EQ(image.colorSpace(), QColorSpace(QColorSpace::SRgb));
    }
    const QImage deep =
        imageIn("deep", encoded(adobe.convertToFormat(QImage::Format_RGBX64), "png"));
    EXPECT_NEAR(qRed(deep.pixel(9, 9)), 227, 1);
}

TEST_F(ImageTest, TheNameDecidesNothingAndTextsOfTheFileAreDropped)
{
    EXPECT_EQ(imageIn("photo.jpg", encoded(sampleImage(), "png")).width(), 48);
    EXPECT_EQ(imageIn("photo@2x", encoded(sampleImage(), "webp")).devicePixelRatio(), 1.0);
    for (const char* content : {"Just a text.", "<svg xmlns='http://www.w3.org/2000/svg'/>"})
        EXPECT_EQ(problemIn("photo.png", content), ImageProblem::NotAnImage);
    EXPECT_EQ(problemIn("photo.png", QByteArray()), ImageProblem::Empty);
    EXPECT_EQ(problemAt(folder.path("absent.jpg")), ImageProblem::Missing);
    EXPECT_EQ(problemAt(folder.path()), ImageProblem::NotAFile);
    EXPECT_EQ(problemAt(u"/dev/zero"_s), ImageProblem::NotAFile);

    QImage image = sampleImage();
    image.setText(u"exif:GPSLatitude"_s, u"52/1, 31/1, 12/1"_s);
    const QImage loaded = imageIn("placed.png", encoded(image, "png"));
    EXPECT_TRUE(loaded.textKeys().isEmpty());
}

TEST_F(ImageTest, ATruncatedFileIsDamagedAtWhateverLength)
{
    for (const char* format : {"png", "jpg", "webp"}) {
        const QByteArray whole = encoded(sampleImage(200, 150), format);
        for (const qsizetype length :
             {qsizetype{40}, whole.size() / 4, whole.size() / 2, whole.size() - 20})
            EXPECT_EQ(problemIn("cut", whole.first(length)), ImageProblem::Damaged)
                << format << ' ' << length;
        EXPECT_EQ(problemIn("cut", whole.first(1)), ImageProblem::NotAnImage);
    }
    const QByteArray jpeg = encoded(sampleImage(200, 150), "jpg");
    EXPECT_EQ(problemIn("cut.jpg", jpeg.first(jpeg.size() - 1)), ImageProblem::Damaged);
    // What cameras append to a whole one, such as a short film, is none of ours.
    EXPECT_EQ(imageIn("longer.jpg", jpeg + QByteArray(1000, 'x')).width(), 200);
}

QByteArray pngClaiming(quint32 width, quint32 height)
{
    QByteArray png = encoded(sampleImage(), "png");
    png.replace(16, 8, bigEndian(width, height));
    return png.replace(29, 4, bigEndian(crc(png.sliced(12, 17))));
}

QByteArray jpegClaiming(quint16 width, quint16 height)
{
    QByteArray jpeg = encoded(sampleImage(), "jpg");
    const qsizetype frame = jpeg.indexOf("\xff\xc0");
    return jpeg.replace(frame + 5, 4, bigEndian(height, width));
}

TEST_F(ImageTest, ALieAboutTheSizeIsRefusedBeforeDecoding)
{
    EXPECT_EQ(problemIn("lie.png", pngClaiming(30'000, 30'000)), ImageProblem::TooLarge);
    EXPECT_EQ(problemIn("lie.png", pngClaiming(1, 40'000)), ImageProblem::TooLarge);
    EXPECT_EQ(problemIn("lie.png", pngClaiming(0x7fffffff, 0x7fffffff)), ImageProblem::Damaged);
    EXPECT_EQ(problemIn("lie.png", pngClaiming(480, 320)), ImageProblem::Damaged);
    EXPECT_EQ(problemIn("lie.png", pngClaiming(0, 0)), ImageProblem::Damaged);
    EXPECT_EQ(problemIn("lie.jpg", jpegClaiming(8000, 8000)), ImageProblem::Damaged);
    EXPECT_EQ(problemIn("lie.jpg", jpegClaiming(0, 0)), ImageProblem::Damaged);
}

TEST_F(ImageTest, WhatTheMemoryDoesNotHoldIsRefused)
{
    const QByteArray png = encoded(sampleImage(), "png");
    const ImageLimits exact{48 * 32, png.size()};
    EXPECT_TRUE(std::holds_alternative<QImage>(loadImage(folder.write("a.png", png), exact)));
    EXPECT_EQ(problemIn("a.png", png, {exact.pixels - 1, exact.fileBytes}), ImageProblem::TooLarge);
    EXPECT_EQ(problemIn("a.png", png, {exact.pixels, exact.fileBytes - 1}), ImageProblem::TooLarge);

    EXPECT_EQ(ImageLimits::forMemory(std::uint64_t{1} << 31).pixels, 1 << 26);
    EXPECT_EQ(ImageLimits::forMemory(std::uint64_t{1} << 40).pixels, 1 << 28);
}

} // namespace
} // namespace pelmira
