#include "background_editor/BackgroundEditor.h"
#include "background_editor/patterns/ZKLPatterns.h"

namespace pelmira {
namespace {

/// The background editor with a library in which the test picks.
struct DepthPanelsTest : testing::Test, test::BackgroundEditor {
    DepthPanelsTest() : BackgroundEditor({390, 844})
    {
        panels.presentPhotoPickerBlock = [this](std::function<void(const QImage&)> pickedBlock,
                                                std::function<void()> cancelledBlock) {
            ++presented;
            picked = std::move(pickedBlock);
            cancelled = std::move(cancelledBlock);
        };
        panels.dismissPhotoPickerBlock = [this] { ++dismissed; };
        show(plainImage({300, 200}, Qt::transparent));
    }
    bool pick(const QImage& photo)
    {
        const int before = dismissed;
        picked(photo);
        return drainUntil([&] { return dismissed > before; });
    }
    bool hasTile() { return !canvas().tile().isNull(); }
    QImage saved() const { return renderComposition(*screen->composition()); }

    DepthPanels& panels = *screen->depthPanels();
    std::function<void(const QImage&)> picked;
    std::function<void()> cancelled;
    int presented = 0;
    int dismissed = 0;
};

TEST_F(DepthPanelsTest, WithoutAPhotoItsTabOpensTheLibraryAndThePickThePanel)
{
    panels.openPhotoPanel();
    panels.openPhotoPanel(); // a second press on the way
    EXPECT_EQ(presented, 1);
    EXPECT_EQ(screen->panels()->currentPanel(), nullptr);
    cancelled();
    EXPECT_EQ(screen->panels()->currentPanel(), nullptr);

    panels.openPhotoPanel();
    ASSERT_TRUE(pick(plainImage({3000, 1500}, Qt::blue)));
    EXPECT_EQ(screen->panels()->currentPanel(), panels.photoPanel());
    EXPECT_EQ(panels.photo().bgImageOriginal().size(), QSize(2048, 1024));
    EXPECT_EQ(screen->workAreaView()->bgAspectRatio, 2.0);
    EXPECT_EQ(saved().pixel(0, 0), qRgb(0, 0, 255));
    panels.openPhotoPanel();
    EXPECT_EQ(presented, 2);
    panels.showCropScreen(); // nowhere to show it
    EXPECT_FALSE(canvas().isHidden());
}

TEST_F(DepthPanelsTest, APhotoThatComesAfterTheUserHasGoneBackIsDropped)
{
    panels.openPhotoPanel();
    picked(plainImage({4000, 3000}, Qt::blue));
    cancelled();
    panels.showPhotoPicker();
    ASSERT_TRUE(pick(plainImage({500, 400}, Qt::red))); // before the first has its size
    EXPECT_EQ(panels.photo().bgImage().size(), QSize(500, 400));
    EXPECT_EQ(dismissed, 1);
}

TEST_F(DepthPanelsTest, OfALargePhotoOnlyItsBoundedCopyIsKept)
{
    constexpr int width = 5000;
    constexpr int height = 4000;
    std::atomic<bool> isHeld = true;
    const auto letGo = [](void* held) { *static_cast<std::atomic<bool>*>(held) = false; };
    std::vector<QRgb> pixels(std::size_t{width} * height, qRgb(0, 0, 255));
    panels.showPhotoPicker();
    ASSERT_TRUE(pick(QImage(reinterpret_cast<uchar*>(pixels.data()), width, height,
                            QImage::Format_ARGB32_Premultiplied, letGo, &isHeld)));
    ASSERT_TRUE(drainUntil([&] { return !isHeld; }));
    // One copy for all who show it.
    const QImage& kept = panels.photo().bgImageOriginal();
    EXPECT_EQ(kept.size(), QSize(2048, 1638));
    for (const QImage& image : {panels.photo().bgImageCropped(), panels.photo().bgImage(),
                                panels.photoPanel()->image(), canvas().image()})
        EXPECT_EQ(image.cacheKey(), kept.cacheKey());
}

TEST_F(DepthPanelsTest, ATileThatIsPaintedTooLateIsNotShown)
{
    int tiles = 0;
    QObject::connect(&canvas(), &CanvasImageView::contentChanged, [&] { tiles += hasTile(); });
    panels.patternPanel()->didSelectItem(3);
    EXPECT_EQ(screen->rgbButtonLabel(), QStringLiteral("R: G: B:"));
    screen->colorPanel()->colorChangedBlock(Qt::green);
    panels.patternPanel()->didSelectItem(5); // painted after the first
    ASSERT_TRUE(drainUntil([this] { return hasTile(); }));
    EXPECT_EQ(tiles, 1);
    EXPECT_EQ(screen->background().bgPatternIndex(), 5);
}

TEST_F(DepthPanelsTest, APatternKeepsItsShareOfTheCanvas)
{
    panels.patternPanel()->didSelectItem(0);
    ASSERT_TRUE(drainUntil([this] { return hasTile(); }));
    const QString name = panels.patternPanel()->patternNames().at(0);
    const QImage tile = *ZKLPatterns::shared().imageForName(name, 2.0);
    const QImage output = saved();
    ASSERT_EQ(std::max(output.width(), output.height()), 2048);
    for (const QPoint at : {QPoint(0, 0), QPoint(40, 70), QPoint(131, 90)})
        EXPECT_EQ(output.pixel(at.x() % tile.width(), at.y()),
                  tile.pixel(at.x() % tile.width(), at.y()));
    const double side = std::max(canvas().frame().width(), canvas().frame().height());
    EXPECT_NEAR(canvas().tile().width() / canvas().tile().devicePixelRatio() / side,
                tile.width() / 2048.0, 1.0 / side);
}

} // namespace
} // namespace pelmira
