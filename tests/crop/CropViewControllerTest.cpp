#include "crop/CropPreview.h"
#include "crop/CroppedImage.h"
#include "crop/TOCropViewController.h"
#include "support/Test.h"

#include <QColorSpace>

namespace pelmira {
namespace {

struct CropController : testing::Test {
    void open(const QImage& photo)
    {
        tool = std::make_shared<TOCropViewController>(photo, [this] { return now; });
        tool->viewDidLoad();
        tool->setViewSize({390, 844});
        tool->viewWillAppear(true);
        tool->viewDidAppear(true);
    }
    /// What Done gives.
    QImage cropped()
    {
        QImage result;
        tool->didCropToImage = [&](QImage image, QRect) { result = image; };
        tool->doneButtonTapped();
        EXPECT_TRUE(result.isNull()); // not before the last frame has gone
        EXPECT_TRUE(drainUntil([&] { return !result.isNull(); }));
        return result;
    }
    void press(int row) { tool->toolbar()->constraintButtonPressed(tool->toolbar()->button(row)); }
    void rest()
    {
        for (int i = 0; i < 3; ++i) {
            now += 1.0;
            tool->displayLinkFired();
        }
    }

    double now = 100.0;
    std::shared_ptr<TOCropViewController> tool;
};

TEST_F(CropController, DoneTellsTheRectangleTheShareAndTheImageInThisOrderAndOnce)
{
    const QImage photo = placeImage(400, 300);
    open(photo);
    EXPECT_EQ(cropped().cacheKey(), photo.cacheKey()); // the very image: nothing has changed

    open(photo);
    tool->cropView().setImageCropFrame(QRect(100, 30, 200, 150));
    std::vector<QRectF> told;
    QImage result;
    tool->didCropImageToRect = [&](QRect rect) { told.push_back(rect); };
    tool->didCropImageToUnitRect = [&](QRectF rect) { told.push_back(rect); };
    tool->didCropToImage = [&](QImage image, QRect rect) {
        told.push_back(rect);
        result = image;
        tool.reset(); // the owner lets go of the tool
    };
    tool->doneButtonTapped();
    const auto seen = [&] { return std::pair(tool->cropBoxFrame(), tool->imageFrame()); };
    const auto cut = seen();
    tool->doneButtonTapped(); // too late, as all the rest
    tool->cancelButtonTapped();
    press(1);
    tool->viewStepped({cut.first.center(), {5, 5}, 1.5});
    rest();
    EXPECT_EQ(seen(), cut);
    ASSERT_TRUE(drainUntil([&] { return !result.isNull(); }));
    const QRectF rect(100, 30, 200, 150);
    EXPECT_EQ(told, (std::vector{rect, QRectF(0.25, 0.1, 0.5, 0.5), rect}));
    EXPECT_EQ(result.size(), QSize(200, 150));
    EXPECT_EQ(result.pixelColor(0, 0), QColor(100, 30, 0));
    EXPECT_EQ(result.pixelColor(199, 149), QColor(299 % 256, 179, 16));
}

TEST_F(CropController, APressedRatioLocksAndTheFreeOneUnlocks)
{
    open(placeImage(400, 300));
    EXPECT_FALSE(tool->cropView().isAspectRatioLockEnabled());
    for (int row = 1; row < cropPresetCount; ++row) {
        press(row);
        rest();
        EXPECT_TRUE(tool->cropView().isAspectRatioLockEnabled());
        const QSizeF ratio = ratioOfCropPreset(row, {400, 300});
        const QRectF box = tool->cropBoxFrame();
        EXPECT_NEAR(box.width() / box.height(), ratio.width() / ratio.height(), 0.02) << row;
    }
    press(cropPresetFree);
    rest();
    EXPECT_FALSE(tool->cropView().isAspectRatioLockEnabled());
    EXPECT_NEAR(tool->cropBoxFrame().width() / tool->cropBoxFrame().height(), 4.0 / 3, 0.01);
}

TEST_F(CropController, OneFingerMovesWhatItHoldsTwoZoomTheImage)
{
    open(placeImage(400, 300));
    const QRectF box = tool->cropBoxFrame();
    tool->touchBegan(1, box.bottomRight() + QPointF(20, 20));
    tool->touchMoved(1, box.center() + QPointF(20, 20));
    tool->touchBegan(2, box.center()); // too late for two
    tool->touchMoved(2, box.topLeft());
    EXPECT_NEAR(tool->cropBoxFrame().width(), box.width() / 2, 1e-6);
    EXPECT_NEAR(tool->cropBoxFrame().height(), box.height() / 2, 1e-6);
    tool->touchEnded(1);
    tool->touchEnded(2);
    rest();

    // Outside of the edge's margin the finger moves the image and not the box.
    const QRectF settled = tool->cropBoxFrame();
    const QRectF image = tool->imageFrame();
    const QPointF outside(settled.center().x(), settled.top() - 33);
    tool->touchBegan(1, outside);
    tool->touchMoved(1, outside - QPointF(15, 10));
    EXPECT_EQ(tool->cropBoxFrame(), settled);
    EXPECT_EQ(tool->imageFrame(), image.translated(-15, -10));
    tool->touchMoved(1, outside);
    now += 0.2; // at rest: no throw
    tool->touchEnded(1);
    rest();

    // Of two fingers the first lands on an edge: they mean the image all the same.
    tool->touchBegan(1, settled.topLeft());
    tool->touchBegan(2, settled.bottomRight());
    tool->touchMoved(1, settled.topLeft() - QPointF(5, 5));
    tool->touchMoved(2, settled.bottomRight() + QPointF(5, 5));
    EXPECT_EQ(tool->cropBoxFrame(), settled);
    EXPECT_NEAR(tool->imageFrame().width() / image.width(),
                1 + 10 * std::sqrt(2.0) / QLineF(settled.topLeft(), settled.bottomRight()).length(),
                1e-3);
    tool->touchesCancelled();
}

TEST_F(CropController, AThrownImageSlidesOnWithTheFingersSpeed)
{
    open(placeImage(400, 300));
    tool->zoomBy(8.0, tool->cropBoxFrame().center());
    const QPointF start = tool->cropBoxFrame().center();
    tool->touchBegan(1, start);
    for (int i = 1; i <= 5; ++i) {
        now += 0.01;
        tool->touchMoved(1, start - QPointF(5.0 * i, 0));
    }
    tool->touchEnded(1);
    const double left = tool->imageFrame().left();
    ASSERT_TRUE(tool->isMoving());
    now += 0.01;
    tool->displayLinkFired();
    EXPECT_NEAR(tool->imageFrame().left() - left, -5.0, 0.2);
    rest();
    EXPECT_NEAR(tool->imageFrame().left() - left, -250.0, 10.0);
    EXPECT_FALSE(tool->isMoving());
}

TEST_F(CropController, ALargeImageIsShownScaledAndCroppedInFull)
{
    const QImage photo = placeImage(cropPreviewSide + 904, 60);
    open(photo);
    ASSERT_TRUE(drainUntil([&] { return tool->levels().size() > 1; }));
    EXPECT_EQ(tool->levels().back().width(), cropPreviewSide);
    // What is shown has as many pixels as the screen gives it, and less than twice as many.
    for (const double zoom : {1.0, 2.5, 4.0}) {
        tool->zoomBy(zoom, tool->cropBoxFrame().center());
        const int width = tool->levels()[tool->shownLevel()].width();
        EXPECT_GE(width, tool->imageFrame().width());
        EXPECT_LT(width, 2 * tool->imageFrame().width());
    }
    tool->cropView().setImageCropFrame(QRect(4800, 10, 200, 50));
    const QImage shown = tool->levels()[tool->shownLevel()];
    EXPECT_EQ(cropped(), photo.copy(4800, 10, 200, 50));
    // What is larger than what is shown has made room, and what is shown has stayed.
    EXPECT_EQ(tool->levels()[tool->shownLevel()].cacheKey(), shown.cacheKey());
    EXPECT_EQ(tool->levels().back().cacheKey(), shown.cacheKey());
}

TEST(CroppedImage, KeepsWhatTheImageIs)
{
    QImage image = placeImage(30, 20).convertToFormat(QImage::Format_RGB32);
    image.setColorSpace(QColorSpace::SRgb);
    image.setDevicePixelRatio(2.0);
    const QImage part = croppedImageWithFrame(image, QRect(25, 15, 5, 5));
    EXPECT_FALSE(part.hasAlphaChannel());
    EXPECT_EQ(part.devicePixelRatio(), 2.0);
    EXPECT_EQ(part.colorSpace(), image.colorSpace());
    EXPECT_EQ(part.pixelColor(4, 4), QColor(29, 19, 0));
    EXPECT_TRUE(croppedImageWithFrame(image, QRect()).isNull());

    const QImage clear = plainImage({4, 4}, QColor(40, 80, 120, 64));
    const QImage beyond = croppedImageWithFrame(clear, QRect(2, 2, 4, 4));
    EXPECT_EQ(beyond.pixel(1, 1), clear.pixel(0, 0));
    EXPECT_EQ(qAlpha(beyond.pixel(2, 2)), 0);
}

} // namespace
} // namespace pelmira
