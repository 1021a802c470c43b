#include "platform/image/HeifImage.h"

#include "support/HeifEncoder.h"
#include "support/Test.h"

#include <QColorSpace>

namespace pelmira {
namespace {

using test::encodedHeif;
using test::HeifForm;

constexpr ImageLimits wideLimits{1 << 24, 1 << 24};

/// Four flat quarters, each of another colour: red, green / blue, grey.
QImage quarters()
{
    return paintedImage(
        {96, 64},
        [](int x, int y) {
            return y < 32 ? (x < 48 ? qRgb(200, 40, 40) : qRgb(40, 180, 60))
                          : (x < 48 ? qRgb(40, 60, 200) : qRgb(90, 90, 90));
        },
        QImage::Format_RGBA8888);
}

void expectColour(QRgb pixel, int red, int green, int blue, int tolerance = 6)
{
    EXPECT_LE(farthest(pixel | 0xFF000000, qRgb(red, green, blue)), tolerance);
}

struct HeifImageTest : testing::Test {
    void SetUp() override
    {
        if (encodedHeif(quarters(), {}).isEmpty())
            GTEST_SKIP() << "libheif has no encoder here";
    }

    static QImage imageIn(const QByteArray& bytes)
    {
        auto result = imageFromData(bytes, wideLimits);
        QImage* image = std::get_if<QImage>(&result);
        EXPECT_TRUE(image);
        return image ? *image : QImage();
    }
    static ImageProblem problemIn(const QByteArray& bytes, const ImageLimits& limits = wideLimits)
    {
        const auto result = imageFromData(bytes, limits);
        const auto* problem = std::get_if<ImageProblem>(&result);
        EXPECT_TRUE(problem);
        return problem ? *problem : ImageProblem();
    }
};

TEST_F(HeifImageTest, IsToldByItsContentsAlsoDamagedAndComesInTheBitmapForm)
{
    const TemporaryFolder folder;
    const QByteArray heif = encodedHeif(quarters(), {});
    const auto result = loadImage(folder.write("photo.jpg", heif));
    const QImage* image = std::get_if<QImage>(&result);
    ASSERT_TRUE(image);
    EXPECT_EQ(image->size(), QSize(96, 64));
    EXPECT_EQ(image->format(), QImage::Format_ARGB32_Premultiplied);
    EXPECT_LE(test::difference(*image, quarters()).mean, 6);

    problemIn(heif.first(heif.size() / 2));
    EXPECT_FALSE(isHeif(QByteArray::fromHex("0000001866747970") + "mp42" + QByteArray(30, '\0')))
        << "a film";
}

// What makes of one picture one put together of others, which aren't there.
TEST_F(HeifImageTest, ACanvasLargerThanTheFileSaysIsNotMade)
{
    const QByteArray plain = encodedHeif(quarters(), {});
    const qsizetype kind = plain.indexOf("hvc1", plain.indexOf("infe"));
    const qsizetype data = plain.indexOf("mdat") + 4;
    ASSERT_TRUE(kind > 0 && data > kind);
    const auto problemOf = [&](const char* type, const QByteArray& description) {
        return problemIn(QByteArray(plain)
                             .replace(kind, 4, type)
                             .replace(data, description.size(), description));
    };
    const auto hex = [](const char* digits) { return QByteArray::fromHex(digits); };
    const QByteArray black(8, '\0');
    // Version and width of numbers; row and column of a grid, or the ground's colour; the size.
    EXPECT_EQ(problemOf("grid", hex("0001 0000 00008000 00008000")), ImageProblem::TooLarge);
    EXPECT_EQ(problemOf("iovl", hex("0001") + black + hex("00008000 00008000")),
              ImageProblem::TooLarge);
    EXPECT_EQ(problemOf("iovl", hex("0000") + black + hex("ffff 8000")), ImageProblem::TooLarge);
    EXPECT_EQ(problemOf("grid", hex("0000 0000 0060 0040")), ImageProblem::Damaged);
}

TEST_F(HeifImageTest, TheFilesOwnTurnsAreCarriedOut)
{
    // Where the red and the green quarter of the stored picture end up.
    const struct {
        int orientation;
        QPoint red;
        QPoint green;
    } turns[] = {{2, {80, 15}, {15, 15}},
                 {3, {80, 48}, {15, 48}},
                 {6, {48, 15}, {48, 80}},
                 {8, {15, 80}, {15, 15}}};
    for (const auto& turn : turns) {
        HeifForm form;
        form.orientation = turn.orientation;
        const QImage image = imageIn(encodedHeif(quarters(), form));
        ASSERT_EQ(image.size(), turn.orientation > 4 ? QSize(64, 96) : QSize(96, 64));
        expectColour(image.pixel(turn.red), 200, 40, 40);
        expectColour(image.pixel(turn.green), 40, 180, 60);
    }
}

TEST_F(HeifImageTest, ProfilesAreConverted)
{
    // The same numbers in P3 are a stronger green and red than in sRGB.
    HeifForm icc;
    icc.iccProfile = QColorSpace(QColorSpace::DisplayP3).iccProfile();
    HeifForm nclx;
    nclx.primaries = 12; // SMPTE EG 432-1, P3's
    nclx.transfer = 13;  // sRGB's
    QImage reference = quarters();
    reference.setColorSpace(QColorSpace::DisplayP3);
    reference = makeBitmapForm(reference);
    ASSERT_GT(std::abs(qRed(reference.pixel(20, 15)) - 200), 10);
    for (const HeifForm& form : {icc, nclx}) {
        const QImage image = imageIn(encodedHeif(quarters(), form));
        EXPECT_EQ(image.colorSpace(), QColorSpace(QColorSpace::SRgb));
        for (const QPoint point : {QPoint(20, 15), QPoint(70, 50)}) {
            const QRgb wanted = reference.pixel(point);
            expectColour(image.pixel(point), qRed(wanted), qGreen(wanted), qBlue(wanted), 8);
        }
    }
}

TEST_F(HeifImageTest, TransparencyAndDepthComeAlong)
{
    QImage half = quarters();
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 48; ++x)
            half.setPixelColor(x, y, QColor(200, 40, 40, y < 32 ? 128 : 0));
    HeifForm form;
    form.hasAlpha = true;
    const QImage image = imageIn(encodedHeif(half, form));
    EXPECT_NEAR(qAlpha(image.pixel(20, 15)), 128, 4);
    EXPECT_NEAR(*(image.constScanLine(15) + 20 * 4 + 2), 100, 6) << "premultiplied";
    EXPECT_NEAR(qAlpha(image.pixel(20, 50)), 0, 4);
    EXPECT_NEAR(qAlpha(image.pixel(70, 15)), 255, 4);

    HeifForm deep;
    deep.bits = 10;
    const auto result = readHeif(encodedHeif(quarters(), deep), wideLimits);
    const QImage* image16 = std::get_if<QImage>(&result);
    if (!image16)
        GTEST_SKIP() << "the encoder has no 10 bits";
    EXPECT_EQ(image16->depth(), 64);
    expectColour(makeBitmapForm(*image16).pixel(20, 15), 200, 40, 40);
}

TEST_F(HeifImageTest, WhatIsTooLargeIsRefusedBeforeDecoding)
{
    const QByteArray heif = encodedHeif(quarters(), {});
    EXPECT_EQ(problemIn(heif, {96 * 64 - 1, 1 << 20}), ImageProblem::TooLarge);
    EXPECT_EQ(imageFromData(heif, {96 * 64, 1 << 20}).index(), 0U);

    QByteArray lie = heif;
    const qsizetype extent = lie.indexOf("ispe") + 8;
    lie.replace(extent, 8, QByteArray::fromHex("0000753000007530")); // 30000 by 30000
    EXPECT_EQ(problemIn(lie), ImageProblem::TooLarge);
    lie.replace(extent, 8, QByteArray::fromHex("7fffffff7fffffff"));
    EXPECT_NE(problemIn(lie), ImageProblem::NotAnImage);
    lie.replace(extent, 8, QByteArray::fromHex("0000100000001000"));
    EXPECT_NE(problemIn(lie), ImageProblem::NotAnImage) << "the coded picture is smaller";
}

} // namespace
} // namespace pelmira
