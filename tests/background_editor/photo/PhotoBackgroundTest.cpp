#include "background_editor/photo/PhotoBackground.h"
#include "background_editor/photo/BGEPhotoView.h"
#include "support/Test.h"

#include <gmock/gmock.h>

namespace pelmira {
namespace {

using testing::ElementsAre;

QImage photo(int width, int height)
{
    return paintedImage({width, height}, [](int x, int y) {
        return (x / 20 + y / 20) % 2 != 0 ? qRgb(250, 240, 200) : qRgb(20, 40, 90);
    });
}

struct PhotoBackgroundTest : testing::Test {
    PhotoBackgroundTest()
    {
        background.backgroundImageChangedBlock = [this](const QImage& image) {
            shown.push_back(image.size());
            last = image;
        };
    }
    bool waitFor(std::size_t count)
    {
        return drainUntil([&] { return shown.size() >= count; });
    }

    PhotoBackground background;
    std::vector<QSize> shown;
    QImage last;
};

TEST_F(PhotoBackgroundTest, SizesAreBroughtIntoBounds)
{
    const QImage fits = photo(2048, 400);
    EXPECT_EQ(PhotoBackground::limitedToSize(photo(5000, 3000)).size(), QSize(2048, 1229));
    EXPECT_EQ(PhotoBackground::limitedToSize(photo(300, 200)).size(), QSize(400, 267));
    EXPECT_EQ(PhotoBackground::limitedToSize(fits).cacheKey(), fits.cacheKey());
    EXPECT_EQ(PhotoBackground::radiusBase({1024, 90}), 5.0);
    EXPECT_EQ(PhotoBackground::radiusBase({1024, 1024}), 50.0);
}

TEST_F(PhotoBackgroundTest, WithoutABlurTheWholePhotoComesBeforeItsReducedCopy)
{
    background.setBlurAmount(0.5F); // no photo yet
    EXPECT_EQ(background.blurAmount(), 0.0F);
    EXPECT_FALSE(background.blurHelper());

    const QImage picked = photo(1600, 1200);
    background.setBackgroundPhoto(picked);
    background.setBlurAmount(0.5F);
    ASSERT_TRUE(waitFor(2));
    EXPECT_NE(last.pixel(30, 10), picked.pixel(30, 10));
    background.setBlurAmount(0.0F);
    EXPECT_EQ(last.cacheKey(), picked.cacheKey());
    ASSERT_TRUE(waitFor(4));
    EXPECT_THAT(shown, ElementsAre(QSize(1600, 1200), QSize(1024, 768), QSize(1600, 1200),
                                   QSize(1024, 768)));
    EXPECT_EQ(background.bgImage().cacheKey(), background.blurHelper()->originalImage().cacheKey());
}

TEST_F(PhotoBackgroundTest, ACropIsBlurredAnewAsThePhotoWas)
{
    background.setBackgroundPhoto(photo(1600, 1200));
    const QRect rect(100, 200, 800, 1000);
    background.finishCrop(photo(800, 1000), rect);
    EXPECT_FALSE(background.blurHelper());
    EXPECT_EQ(background.bgImage().cacheKey(), background.bgImageCropped().cacheKey());
    EXPECT_EQ(background.bgImageOriginal().size(), QSize(1600, 1200));
    EXPECT_EQ(background.bgImageCropRect(), rect);

    background.setBlurAmount(0.2F);
    background.finishCrop({}, {});
    EXPECT_EQ(background.bgImageCropRect(), rect);
    // The blur under way is of the crop before and doesn't come any more.
    background.finishCrop(photo(1000, 500), {0, 0, 1000, 500});
    ASSERT_TRUE(waitFor(4));
    EXPECT_THAT(shown, ElementsAre(QSize(1600, 1200), QSize(800, 1000), QSize(1000, 500),
                                   QSize(1024, 512)));
    EXPECT_EQ(background.blurAmount(), 0.2F);
    // Nor does what is left of it where the blur has been turned off.
    shown.clear();
    background.setBlurAmount(0.0F);
    background.finishCrop(photo(600, 900), {0, 0, 600, 900});
    background.setBlurAmount(0.2F);
    ASSERT_TRUE(waitFor(3));
    EXPECT_THAT(shown, ElementsAre(QSize(1000, 500), QSize(600, 900), QSize(683, 1024)));
}

TEST_F(PhotoBackgroundTest, AnotherPhotoOrAColourStartsAfresh)
{
    auto gone = std::make_unique<PhotoBackground>();
    gone->setBackgroundPhoto(photo(900, 600));
    gone->setBlurAmount(1.0F);
    gone.reset(); // with its blur on the way: nobody is told
    background.setBackgroundPhoto(photo(900, 600));
    background.setBlurAmount(1.0F);
    const QImage next = photo(640, 480);
    background.setBackgroundPhoto(next);
    EXPECT_EQ(background.blurAmount(), 0.0F);
    EXPECT_FALSE(background.blurHelper());
    EXPECT_TRUE(background.bgImageCropRect().isEmpty());

    background.setBlurAmount(1.0F);
    background.removePhoto();
    EXPECT_TRUE(background.bgImage().isNull());
    EXPECT_TRUE(background.bgImageOriginal().isNull());
    // A colour doesn't stop what is under way; the blur of the first photo never came.
    ASSERT_TRUE(waitFor(4));
    EXPECT_THAT(shown,
                ElementsAre(QSize(900, 600), QSize(640, 480), QSize(0, 0), QSize(1024, 768)));
}

TEST(BGEPhotoView, TheSlidersLowestPointsAreNoBlurAtAll)
{
    BGEPhotoView panel;
    std::vector<float> amounts;
    panel.setBlurAmountBlock = [&amounts](float amount) { amounts.push_back(amount); };
    panel.setSliderWidth(300);
    panel.slider()->moveTo(0.019);
    EXPECT_EQ(panel.slider()->value(), 0.0F);
    panel.slider()->moveTo(0.021);
    panel.setSliderWidth(60); // counts as 100
    panel.slider()->moveTo(0.059);
    panel.slider()->moveTo(0.061);
    EXPECT_THAT(amounts, ElementsAre(0.0F, 0.021F, 0.0F, 0.061F));
    panel.slider()->setValue(0.5F); // by the screen: nothing to report
    EXPECT_EQ(amounts.size(), 4U);
}

} // namespace
} // namespace pelmira
