#include "mask_editor/surface/OGLESMappedTexture.h"
#include "mask_editor/surface/RenderOut.h"
#include "platform/base/Log.h"
#include "support/EngineFixture.h"

namespace pelmira {
namespace {

constexpr std::uint32_t marked = 0x80123456U;

struct TransferCase {
    const char* name;
    GLContext::Options options;
};

void fill(OGLESMappedTexture& surface, const QImage& image)
{
    ASSERT_TRUE(surface.lockTexture());
    surface.changePixels([&](const PixelSpan& pixels) {
        OGLESMappedTexture::copyImageIntoBuffer(image, pixels);
        return QRegion(surface.bounds());
    });
    EXPECT_FALSE(surface.unlockPart()); // so few are sent at once
    surface.unlockTexture();
}

class SurfaceTransfer : public ::testing::TestWithParam<TransferCase> {
protected:
    // Fills a rectangle of the texture by a GL call, which sets every byte of it to `value`.
    static void clearByGPU(const OGLESMappedTexture& surface, const QRect& r, float value)
    {
        const GLFramebuffer framebuffer = GLFramebuffer::generate();
        const FramebufferBinding binding(framebuffer.get());
        glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D,
                               surface.texture(), 0);
        ASSERT_EQ(glCheckFramebufferStatus(GL_FRAMEBUFFER), GLenum(GL_FRAMEBUFFER_COMPLETE));
        glEnable(GL_SCISSOR_TEST);
        glScissor(r.x(), r.y(), r.width(), r.height());
        glClearColor(value, value, value, value);
        glClear(GL_COLOR_BUFFER_BIT);
        glDisable(GL_SCISSOR_TEST);
    }

    std::shared_ptr<GLContext> context = GLContext::surfaceless(GetParam().options);
    std::unique_ptr<OGLESMappedTexture> surface = OGLESMappedTexture::oGLESMappedTexture(context);
};

TEST_P(SurfaceTransfer, CarriesAcrossExactlyWhatWasReported)
{
    const QImage image = placeImage(33, 21); // 132 bytes a row: the stride has to be padded
    ASSERT_TRUE(surface->makeMappedTexture(image.size()));
    fill(*surface, image);

    const QRect reported(3, 4, 9, 5);
    surface->drawPixels(reported, [&] { clearByGPU(*surface, QRect(0, 0, 33, 21), 1.0F); });
    ASSERT_TRUE(surface->lockTexture());
    EXPECT_EQ(surface->lockedPixels().bytesPerRow % 16, 0U);
    const auto expectSeen = [this](const auto& colourAt) {
        std::vector<std::uint32_t> seen(33 * 21);
        surface->copyIntoFlatPixelsBuffer(seen.data());
        for (int y = 0; y < 21; ++y)
            for (int x = 0; x < 33; ++x)
                ASSERT_EQ(seen[std::size_t(y) * 33 + x], colourAt(QPoint(x, y))) << x << ", " << y;
    };
    expectSeen([&](QPoint at) { return reported.contains(at) ? 0xFFFFFFFFU : image.pixel(at); });
    // The CPU changes everything but reports two small places: GL keeps white elsewhere.
    const QRegion written = QRegion(1, 1, 2, 2) + QRegion(20, 15, 4, 3);
    surface->changePixels([&](const PixelSpan& pixels) {
        for (std::uint32_t y = 0; y < pixels.height; ++y)
            std::fill_n(pixels.row(y), pixels.width, marked);
        return written;
    });
    ASSERT_TRUE(surface->unlockTexture());
    EXPECT_EQ(surface->baseAddress(), nullptr);
    surface->drawPixels(surface->bounds(), [] {});
    ASSERT_TRUE(surface->lockTexture());
    expectSeen([&](QPoint at) { return written.contains(at) ? marked : 0xFFFFFFFFU; });
    surface->unlockTexture();
}

TEST_P(SurfaceTransfer, RoundTripsEveryByteOfAnImageThatIsSentInParts)
{
    constexpr int width = 1701;
    constexpr int height = 1301;
    std::vector<std::uint32_t> flat(width * height);
    std::uint32_t seed = 1;
    for (std::uint32_t& pixel : flat)
        pixel = seed = seed * 1664525U + 1013904223U;
    ASSERT_TRUE(surface->makeMappedTexture({width, height}));
    ASSERT_TRUE(surface->lockTexture());
    surface->copyFlatPixelsIntoBuffer(flat.data());
    EXPECT_TRUE(surface->unlockPart());
    EXPECT_FALSE(surface->unlockPart());
    surface->unlockTexture();
    surface->drawPixels(surface->bounds(), [] {}); // GL's copy now counts as the newer one
    ASSERT_TRUE(surface->lockTexture());
    std::vector<std::uint32_t> back(flat.size());
    surface->copyIntoFlatPixelsBuffer(back.data());
    surface->unlockTexture();
    EXPECT_EQ(back, flat);
}

INSTANTIATE_TEST_SUITE_P(Forms, SurfaceTransfer,
                         ::testing::Values(TransferCase{"asTheGPUIs", {}},
                                           TransferCase{"withoutRowLengths",
                                                        {.allowRowLengths = false}},
                                           TransferCase{"withoutBGRA", {.allowBGRA = false}}),
                         [](const auto& test) { return test.param.name; });

TEST(Surface, TakesStraightColourFromAnImageAndGivesItBackPremultiplied)
{
    constexpr int alphas[] = {128, 255, 0};
    const QImage image = paintedImage(
        {3, 1}, [&](int x, int) { return qRgba(200, 100, 40, alphas[x]); }, QImage::Format_ARGB32);
    const auto surface = OGLESMappedTexture::oGLESMappedTexture(GLContext::surfaceless());
    ASSERT_TRUE(surface->makeMappedTexture(image.size()));
    fill(*surface, image);
    ASSERT_TRUE(surface->lockTexture());
    const QRgb half = surface->lockedPixels().row(0)[0];
    EXPECT_EQ(qAlpha(half), 128);
    EXPECT_NEAR(qRed(half), 200, 1);
    EXPECT_NEAR(qBlue(half), 40, 1);
    EXPECT_EQ(surface->lockedPixels().row(0)[2], 0U); // what was transparent has no colour
    surface->unlockTexture();

    const QImage cutOut = renderCutOut(surface.get());
    ASSERT_EQ(cutOut.format(), QImage::Format_ARGB32_Premultiplied);
    const auto* row = reinterpret_cast<const QRgb*>(cutOut.constScanLine(0));
    EXPECT_NEAR(qRed(row[0]), 100, 1);
    EXPECT_EQ(row[1], qRgba(200, 100, 40, 255));
    EXPECT_EQ(row[2], 0U);
    EXPECT_TRUE(renderCutOut(nullptr).isNull());
}

TEST(Surface, RefusesSizesThatCanNotBe)
{
    std::vector<std::string> lines;
    setLogSink([&lines](const std::string& line) { lines.push_back(line); });
    const auto context = GLContext::surfaceless();
    const double tooLarge = context->capabilities().maxTextureSize + 1.0;
    const auto surface = OGLESMappedTexture::oGLESMappedTexture(context);
    EXPECT_FALSE(surface->makeMappedTexture({0, 0}));
    EXPECT_FALSE(surface->makeMappedTexture({-5, 10}));
    EXPECT_FALSE(surface->makeMappedTexture({tooLarge, 4}));
    EXPECT_FALSE(surface->lockTexture());
    EXPECT_FALSE(surface->isReady());
    setLogSink({});
    EXPECT_EQ(lines.size(), 4U);
}

} // namespace
} // namespace pelmira
