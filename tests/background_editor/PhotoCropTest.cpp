#include "background_editor/BackgroundEditor.h"
#include "crop/TOCropViewController.h"
#include "support/ShownScreen.h"

#include <QPainter>

namespace pelmira {
namespace {

QImage photo()
{
    QImage image = plainImage({1600, 1200}, QColor(20, 60, 160));
    QPainter(&image).fillRect(0, 0, 800, 1200, QColor(230, 180, 60));
    return image;
}

/// The background editor on the real stack of screens, with a blurred photo as background.
struct PhotoCrop : testing::Test, test::BackgroundEditor {
    PhotoCrop() : BackgroundEditor({390, 844}) {}
    void SetUp() override
    {
        shown.emplace(screen, QSize(390, 844));
        panels.screens = &shown->navigation;
        panels.presentPhotoPickerBlock = [](auto picked, auto) { picked(photo()); };
        panels.openPhotoPanel();
        ASSERT_TRUE(waitFor([this] { return !panels.photo().bgImage().isNull(); }));
        panels.photoPanel()->slider()->moveTo(1.0);
        ASSERT_TRUE(waitForBlur());
        ASSERT_TRUE(waitFor([this] { return isCanvasAtRest(); }));
    }
    bool waitForBlur()
    {
        return waitFor([this] {
            return panels.photo().bgImage().cacheKey() !=
                   panels.photo().bgImageCropped().cacheKey();
        });
    }
    /// The frame that the canvas animates to is told at once.
    QRectF canvasFrame() const { return panels.canvasFrameBlock(); }
    QImage grab() { return shown->window.grabWindow().copy(canvasFrame().toAlignedRect()); }
    /// What is seen at the canvas's left edge is the photo's left part.
    bool isCanvasAtRest()
    {
        const QColor left = grab().pixelColor(3, 3);
        return std::abs(left.red() - 230) < 8 && std::abs(left.blue() - 60) < 8;
    }

    DepthPanels& panels = *screen->depthPanels();
    std::optional<test::ShownScreen> shown;
};

TEST_F(PhotoCrop, GrowsFromThePictureAsItIsShownAndShrinksIntoTheCanvasOfItsShape)
{
    const qint64 blurred = panels.photo().bgImage().cacheKey();
    const QRectF from = canvasFrame();
    const QImage before = grab();
    panels.showCropScreen();
    panels.showCropScreen(); // a second press
    auto* tool = dynamic_cast<TOCropViewController*>(shown->navigation.topScreen());
    ASSERT_NE(tool, nullptr);
    const TOCropViewControllerTransitioning& way = *tool->transitionController();
    EXPECT_EQ(way.image().cacheKey(), blurred);
    EXPECT_EQ(way.frame(), from);
    EXPECT_TRUE(canvas().isHidden());
    // The blur's soft middle is what is seen, not the sharp edge of the photo in the tool.
    const QImage start = grab();
    for (int x = 4; x < start.width() - 4; x += 10) {
        const int y = start.height() / 2;
        EXPECT_NEAR(qRed(start.pixel(x, y)), qRed(before.pixel(x, y)), 4) << x;
    }
    ASSERT_TRUE(waitFor([&] { return !way.isRunning(); }));
    EXPECT_FALSE(canvas().isHidden());

    tool->cropView().setImageCropFrame({0, 0, 600, 1200});
    QRectF end;
    bool wasHidden = false;
    QObject::connect(&way, &TOCropViewControllerTransitioning::changed, screen.get(), [&] {
        end = way.frame();
        wasHidden = wasHidden || canvas().isHidden();
    });
    tool->doneButtonTapped();
    ASSERT_TRUE(waitFor([&] { return shown->navigation.topScreen() == screen.get(); }));
    EXPECT_EQ(panels.photo().bgImageCropRect(), QRect(0, 0, 600, 1200));
    EXPECT_EQ(screen->workAreaView()->bgAspectRatio, 0.5);
    EXPECT_EQ(end, canvasFrame());
    EXPECT_TRUE(wasHidden);
    EXPECT_FALSE(canvas().isHidden());
    EXPECT_TRUE(waitForBlur()); // the crop is blurred as the photo was

    const auto isCropping = [&] {
        panels.showCropScreen();
        tool = dynamic_cast<TOCropViewController*>(shown->navigation.topScreen());
        return tool != nullptr;
    };
    ASSERT_TRUE(waitFor(isCropping)); // once the tool before has gone
    tool->cancelButtonTapped();       // while the picture still grows
    EXPECT_EQ(shown->navigation.topScreen(), screen.get());
    EXPECT_FALSE(canvas().isHidden());
}

TEST_F(PhotoCrop, NothingOpensOverACompositionThatIsBeingSaved)
{
    std::function<void(bool)> answer;
    screen->saveBlock = [&answer](auto, auto completion) { answer = std::move(completion); };
    screen->setFgImage(plainImage({300, 200}, Qt::red));
    screen->viewDidAppear(false);
    QQuickItem* crop = shown->button(QStringLiteral("Crop"));
    ASSERT_TRUE(waitFor([&] { // the panel has come up
        return shown->frameOf(crop).bottom() < screen->tabbarFrame().top();
    }));
    shown->click(QStringLiteral("Save"));
    ASSERT_TRUE(answer);
    shown->click(crop);
    EXPECT_EQ(shown->navigation.topScreen(), screen.get());
    const QPointF from = screen->workAreaView()->fgStickerView()->center();
    shown->key(Qt::Key_Left); // what is saved isn't moved any more
    EXPECT_EQ(screen->workAreaView()->fgStickerView()->center(), from);
}

} // namespace
} // namespace pelmira
