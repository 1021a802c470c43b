#include "intake/PhotoResize.h"

#include "mask_editor/limits/PlatformUtils.h"
#include "platform/pixels/ImageResize.h"
#include "support/Test.h"

namespace pelmira {
namespace {

struct PhotoResizeTest : testing::Test {
    ~PhotoResizeTest() override { PlatformUtils::overrideDeviceRamMB(std::nullopt); }

    static QSize sizeForEditing(int width, int height, int deviceRamMB = 4096)
    {
        PlatformUtils::overrideDeviceRamMB(deviceRamMB);
        return PhotoResize::imageForEditing(plainImage({width, height}, Qt::red)).size();
    }
};

TEST_F(PhotoResizeTest, TheMemoryBoundsTheLongerSideAndTinyPicturesAreEnlarged)
{
    EXPECT_EQ(sizeForEditing(3000, 2000, 1537), QSize(3000, 2000));
    EXPECT_EQ(sizeForEditing(3000, 2000, 1536), QSize(2048, 1365));
    EXPECT_EQ(sizeForEditing(2000, 3000, 1536), QSize(1365, 2048));
    EXPECT_EQ(sizeForEditing(4097, 1000), QSize(4096, 1000));
    EXPECT_EQ(sizeForEditing(8192, 1), QSize(4096, 1)) << "no side vanishes";
    EXPECT_EQ(sizeForEditing(300, 200), QSize(400, 267));
    EXPECT_EQ(sizeForEditing(1, 1), QSize(400, 400));
    EXPECT_EQ(sizeForEditing(399, 4), QSize(400, 4));
    EXPECT_TRUE(PhotoResize::imageForEditing(QImage()).isNull());
    PlatformUtils::overrideDeviceRamMB(4096);
    for (const QSize size : {QSize(4096, 1000), QSize(400, 300), QSize(12, 400)}) {
        const QImage image = plainImage(size, Qt::red);
        EXPECT_EQ(PhotoResize::imageForEditing(image).cacheKey(), image.cacheKey());
    }
}

TEST_F(PhotoResizeTest, TheOrientationIsBakedInAtEverySize)
{
    PlatformUtils::overrideDeviceRamMB(1024);
    for (const int longest : {40, 1000, 4000}) {
        const QImage image = paintedImage({longest, longest / 2}, [=](int x, int y) {
            const bool isTopLeft = x < longest / 4 && y < longest / 4; // as it is stored
            return isTopLeft ? qRgb(250, 0, 0) : qRgb(60, 90, 120);
        });
        const QImage turned =
            PhotoResize::imageForEditing(image, QImageIOHandler::TransformationRotate90);
        EXPECT_GT(turned.height(), turned.width());
        EXPECT_EQ(qRed(turned.pixel(turned.width() - 8, 8)), 250);
        EXPECT_EQ(qRed(turned.pixel(8, 8)), 60);
        const QImage mirrored =
            PhotoResize::uprightImage(image, QImageIOHandler::TransformationMirror);
        EXPECT_EQ(mirrored.size(), image.size());
        EXPECT_EQ(qRed(mirrored.pixel(longest - 2, 2)), 250);
    }
}

TEST_F(PhotoResizeTest, FineDetailAveragesInsteadOfFlickering)
{
    const QImage lines = paintedImage(
        {4000, 40}, [](int x, int) { return x % 2 ? qRgb(200, 200, 200) : qRgb(0, 0, 0); });
    const QImage small = resizedImageWithContentMode(lines, QSizeF(500, 500));
    ASSERT_EQ(small.size(), QSize(500, 5));
    for (int x = 2; x < 498; ++x)
        EXPECT_NEAR(qRed(small.pixel(x, 2)), 100, 6);
    EXPECT_EQ(small.format(), QImage::Format_ARGB32_Premultiplied);
}

} // namespace
} // namespace pelmira
