#include "mask_editor/drawing/MaskInverter.h"
#include "mask_editor/drawing/WandMagnifier.h"
#include "support/EngineFixture.h"

namespace pelmira {
namespace {

constexpr GLContext::Options withoutFetch{.allowFramebufferFetch = false};

const auto isNear = [](QRgb a, QRgb b, int tolerance = 2) { return farthest(a, b) <= tolerance; };
constexpr QRgb ground = qRgb(16, 17, 19);

TEST(Compositor, FitsThePhotoAtFourFifthsOfTheLimitingSide)
{
    const QRgb green = qRgb(10, 200, 90);
    for (const auto& [view, photo, shown] :
         {std::tuple(QSizeF(390, 844), QSize(400, 200), QSizeF(312, 156)),
          {{844, 390}, {200, 400}, {156, 312}},
          {{390, 844}, {100, 400}, {168.8, 675.2}},
          {{844, 390}, {1600, 400}, {675.2, 168.8}}}) {
        EngineFixture fixture({}, view);
        fixture.open(plainImage(photo, green));
        const QImage frame = fixture.frame();
        const QPointF centre(view.width() / 2, view.height() / 2);
        for (const QPointF side : {QPointF(-1, 0), QPointF(1, 0), QPointF(0, -1), QPointF(0, 1)}) {
            const QPointF edge(side.x() * shown.width() / 2, side.y() * shown.height() / 2);
            EXPECT_TRUE(isNear(frame.pixel((centre + edge - 2 * side).toPoint()), green));
            EXPECT_TRUE(isNear(frame.pixel((centre + edge + 2 * side).toPoint()), ground));
        }
    }
}

TEST(Compositor, ShowsThePhotoUprightAndTurnsItClockwise)
{
    EngineFixture fixture;
    fixture.open(paintedImage({400, 400}, [](int x, int y) {
        return x < 100 && y < 100 ? qRgb(255, 0, 0) : qRgb(255, 255, 255);
    }));
    const QPoint centre(195, 422);
    EXPECT_TRUE(isNear(fixture.frame().pixel(centre + QPoint(-140, -140)), qRgb(255, 0, 0)));

    FgImage& fg = fixture.engine.canvas.fgImage;
    fg.rotation = M_PI / 2;
    fg.center = {0.1, 0.2}; // 39 points to the right, 78 up
    fixture.view.setNeedsDisplay();
    const QPoint moved = centre + QPoint(39, -78);
    EXPECT_TRUE(isNear(fixture.frame().pixel(moved + QPoint(140, -140)), qRgb(255, 0, 0)));
    // The place on the screen leads back to the same pixel of the photo.
    const QPointF back =
        fixture.engine.canvas.maskPosWithLowerLeftZeroOriginForScreenPos(moved + QPoint(140, -140));
    EXPECT_LT(back.x(), 100);
    EXPECT_LT(back.y(), 100);
}

TEST(Compositor, DrawsTheChosenBackgroundAndTheRedMaskBeforeIt)
{
    EngineFixture fixture;
    fixture.open(discImage(200, 200));
    fixture.engine.wand.floodFillPoint({2, 2}, 51);
    ASSERT_TRUE(fixture.settle());
    const QPoint removed(195 - 140, 422 - 140);
    const QPoint kept(195, 422);
    ScreenCompositor& compositor = fixture.engine.compositor;
    const auto frameWith = [&](BackgroundMode mode, bool red) {
        compositor.backgroundMode = mode;
        compositor.showsRedMask = red;
        return fixture.newFrame();
    };
    EXPECT_TRUE(isNear(frameWith(BackgroundBlack, false).pixel(removed), qRgb(0, 0, 0)));
    EXPECT_TRUE(isNear(frameWith(BackgroundWhite, false).pixel(removed), qRgb(255, 255, 255)));
    const QRgb checker = frameWith(BackgroundChecker, false).pixel(removed);
    EXPECT_EQ(qRed(checker), qBlue(checker));
    EXPECT_FALSE(isNear(checker, ground, 20));
    for (const BackgroundMode mode : {BackgroundChecker, BackgroundBlack, BackgroundWhite}) {
        const QImage red = frameWith(mode, true);
        EXPECT_GT(qRed(red.pixel(removed)), qGreen(red.pixel(removed)) + 60);
        EXPECT_TRUE(isNear(red.pixel(kept), qRgb(200, 30, 30)));
    }
}

TEST(Compositor, KeepsTheFrameWhileTheSurfaceIsBusyInAResizedWindowToo)
{
    EngineFixture fixture;
    EXPECT_TRUE(isNear(fixture.newFrame().pixel(195, 422), ground)); // before a photo: only cleared
    fixture.open(discImage(200, 200));
    const QImage before = fixture.frame();
    fixture.engine.canvas.fgMappedTexture->setReady(false);
    fixture.engine.compositor.backgroundMode = BackgroundWhite;
    fixture.engine.canvas.fgImage.scale = 3;
    for (const QSize size : {QSize(390, 844), QSize(844, 390), QSize(300, 1000)}) {
        fixture.view.resize(size);
        const QImage frame = fixture.newFrame();
        ASSERT_EQ(frame.size(), size);
        QRect middle(QPoint(), size.boundedTo(QSize(300, 390)));
        middle.moveCenter(frame.rect().center());
        QRect earlier(QPoint(), middle.size());
        earlier.moveCenter(before.rect().center());
        EXPECT_EQ(frame.copy(middle), before.copy(earlier));
    }
    fixture.view.resize({390, 844});
    fixture.engine.canvas.fgMappedTexture->setReady(true);
    EXPECT_NE(fixture.newFrame(), before);
}

TEST(Compositor, APhotoThatIsNotSeenNeedsNoTextureAndLosesNothing)
{
    EngineFixture fixture;
    MaskEditorEngine& engine = fixture.engine;
    const auto draw = [&] { maskInvert(engine.canvas, engine.shaders, engine.reader); };
    const auto frame = [&] {
        fixture.view.setNeedsDisplay();
        return fixture.frame();
    };
    fixture.open(placeImage(2100, 1100)); // more than is sent at once
    const OGLESMappedTexture& surface = *engine.canvas.fgMappedTexture;
    const std::vector<std::uint32_t> photo = fixture.pixels();
    const QImage shown = frame();
    engine.history.saveUndoBuffer();
    draw();
    const QImage inverted = frame();

    engine.setSeen(false); // the CPU hasn't got yet what was drawn
    EXPECT_FALSE(surface.hasTexture());
    EXPECT_EQ(fixture.alpha(), std::vector<std::uint8_t>(photo.size(), 0));
    engine.history.undo(); // which the CPU writes
    EXPECT_EQ(frame(), inverted);

    engine.setSeen(true);
    EXPECT_EQ(frame(), inverted); // until all is sent
    ASSERT_TRUE(fixture.settle());
    EXPECT_EQ(frame(), shown);

    engine.setSeen(false);
    draw(); // a stroke that waited for its turn, say
    EXPECT_EQ(frame(), inverted);
    draw();
    EXPECT_EQ(fixture.pixels(), photo);
}

TEST(Compositor, ATransparentPhotoHasNoDarkFringe)
{
    // What is transparent in a photo is black there. Shown on white, white stays white.
    EngineFixture fixture;
    fixture.open(paintedImage({1500, 1500}, [](int x, int y) {
        return (x / 7 + y / 11) % 2 ? qRgb(255, 255, 255) : 0U;
    }));
    fixture.engine.compositor.backgroundMode = BackgroundWhite;
    for (const double scale : {1.0, 2.9, 20.0}) {
        fixture.engine.canvas.fgImage.scale = scale;
        const QImage frame = fixture.newFrame();
        for (int y = 300; y < 500; ++y)
            for (int x = 60; x < 330; ++x)
                ASSERT_GE(qRed(frame.pixel(x, y)), 252) << scale << ": " << x << ", " << y;
    }
}

TEST(Compositor, TheMagnifierStandsClearOfThePointerOnEveryWindow)
{
    // An upright phone's is a quarter of its width, and half of its half and 36 points above.
    EXPECT_EQ(wandZoomBox({195, 422}, 390), QRectF(146.25, 312.875, 97.5, 97.5));
    for (double width = 320; width < 4000; width += 7) {
        const QRectF box = wandZoomBox({500, 500}, width);
        EXPECT_LE(box.width(), 160.0);
        EXPECT_LE(box.bottom(), 500.0 - 8.0);
        EXPECT_EQ(box.center().x(), 500.0);
    }
}

TEST(Compositor, TheMagnifierIsTheSameOnBothShaderPathsAndDrawnOnce)
{
    QImage frames[2];
    for (const bool fetch : {true, false}) {
        EngineFixture fixture({.allowFramebufferFetch = fetch});
        fixture.open(placeImage(500, 300));
        const QImage plain = fixture.frame();
        for (const QPointF finger : {QPointF(195, 422), QPointF(4, 30), QPointF(380, 300)}) {
            fixture.engine.overlays.brushPosition = finger;
            fixture.engine.overlays.drawWandZoom = true;
            const QImage frame = fixture.newFrame();
            EXPECT_NE(frame, plain);
            if (finger.x() == 195) {
                frames[fetch] = frame;
                // Its centre shows the pixel under the finger, beside the cross-hair.
                const QRgb under = plain.pixel(195, 422);
                const double half = 390 * 0.25 / 2;
                const QPoint glass(195, int(std::lround(422 - half * 0.5 - 36)));
                EXPECT_TRUE(isNear(frame.pixel(glass), under, 6));
            }
        }
        EXPECT_EQ(fixture.newFrame(), plain);
    }
    // Mixing with what is there may round differently by one step.
    EXPECT_LE(test::difference(frames[0], frames[1]).greatest, 1);
}

TEST(MaskInvert, IsExactOnBothShaderPathsAndItsOwnInverse)
{
    for (const GLContext::Options& options : {GLContext::Options{}, withoutFetch}) {
        EngineFixture fixture(options);
        fixture.open(placeImage(1300, 70)); // wider than a tile of the path that copies its target
        fixture.setAlpha({0, 0, 1300, 70}, [](int x, int y) { return x + y; });
        const std::vector<std::uint32_t> before = fixture.pixels();
        maskInvert(fixture.engine.canvas, fixture.engine.shaders, fixture.engine.reader);
        const std::vector<std::uint32_t> inverted = fixture.pixels();
        for (std::size_t i = 0; i < before.size(); ++i)
            ASSERT_EQ(inverted[i], before[i] ^ 0xFF000000U) << i;
        maskInvert(fixture.engine.canvas, fixture.engine.shaders, fixture.engine.reader);
        EXPECT_EQ(fixture.pixels(), before);
    }
}

} // namespace
} // namespace pelmira
