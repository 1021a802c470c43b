#include "controls/BrushType.h"
#include "support/EngineFixture.h"

#include <QLineF>

#include <cmath>

namespace pelmira {
namespace {

constexpr bool erase = true;
constexpr bool replace = false;

class Strokes : public ::testing::TestWithParam<bool> {
protected:
    // A photo shown at one mask pixel a point: 312 points wide is 312 pixels.
    static constexpr int width = 312;
    static constexpr int height = 208;

    void SetUp() override
    {
        fixture.open(placeImage(width, height));
        fixture.engine.brush.setUnitBrushSize(0.2);
    }

    QPointF at(double x, double y) const { return fixture.screenPosOfPixel({x, y}); }
    void touch(QPointF screen, TouchPhase phase, bool isErase = erase)
    {
        (isErase ? fixture.tools.erase : fixture.tools.replace)
            .handleBrushEvent(fingersAt({screen}), phase);
    }
    void segment(QPointF from, QPointF to, bool isErase)
    {
        strokes.drawLineFromPoint(from, to, brush.brushSize(), isErase);
    }

    // The stamp's coverage at an offset from its centre, for a circle: the shader's formula.
    double coverage(QPointF offset) const
    {
        const double radius = QLineF({}, offset).length() / (brush.brushSize() / 2);
        const double border = std::clamp(brush.unitBrushSoft(), 0.02, 1.0);
        const double t = std::clamp((radius - (1 - border)) / border, 0.0, 1.0);
        return 1 - t * t * (3 - 2 * t);
    }

    EngineFixture fixture{{.allowFramebufferFetch = GetParam()}};
    Brush& brush = fixture.engine.brush;
    StrokeEngine& strokes = fixture.engine.strokes;
    UndoHistory& history = fixture.engine.history;
};

INSTANTIATE_TEST_SUITE_P(ShaderPaths, Strokes, ::testing::Bool(),
                         [](const auto& test) { return test.param ? "fetch" : "copy"; });

TEST_P(Strokes, PaintWhatTheSameStampsGiveOnPaper)
{
    // Soft enough that no step of the 8-bit mask hides a wrong stamp.
    brush.setUnitBrushSoft(1.0);
    const QPointF from(100, 100);
    const QPointF to(131, 117);
    segment(at(100, 100), at(131, 117), erase);
    segment(at(131, 117), at(120, 60), replace);

    std::vector<double> expected(std::size_t(width) * height, 1.0);
    const auto stampAll = [&](QPointF start, QPointF end, bool isErase) {
        const int n =
            std::max(1, static_cast<int>(QLineF(start, end).length() / (brush.brushSize() / 15)));
        for (int i = 0; i <= n; ++i) {
            const QPointF centre = start + (end - start) * (double(i) / n);
            for (int y = 0; y < height; ++y)
                for (int x = 0; x < width; ++x) {
                    double& a = expected[std::size_t(y) * width + x];
                    const double left = 1 - coverage(QPointF(x + 0.5, y + 0.5) - centre);
                    a = isErase ? a * left : 1 - (1 - a) * left;
                }
        }
    };
    stampAll(from, to, erase);
    stampAll(to, {120, 60}, replace);

    const std::vector<std::uint8_t> alpha = fixture.alpha();
    double worst = 0;
    double sum = 0;
    for (std::size_t i = 0; i < alpha.size(); ++i) {
        worst = std::max(worst, std::abs(alpha[i] - expected[i] * 255));
        sum += std::abs(alpha[i] - expected[i] * 255);
    }
    // Each stamp's mask is rounded to 8 bits, and the stamp is sampled from a texture.
    EXPECT_LE(worst, 12.5);
    EXPECT_LT(sum / double(alpha.size()), 0.5);
}

TEST_P(Strokes, NeverTouchAColourByteAndComeBackWholeUnderFullCoverage)
{
    const std::vector<std::uint32_t> before = fixture.pixels();
    brush.setUnitBrushSoft(0.0);
    for (const bool isErase : {erase, replace}) {
        for (int i = 0; i < 12; ++i)
            segment(at(10 + i * 24, 20 + (i % 3) * 60), at(34 + i * 24, 190 - (i % 4) * 40),
                    isErase);
        const std::vector<std::uint32_t> painted = fixture.pixels();
        std::size_t fully = 0;
        for (std::size_t i = 0; i < before.size(); ++i) {
            ASSERT_EQ(painted[i] & 0xFFFFFFU, before[i] & 0xFFFFFFU);
            fully += painted[i] >> 24 == (isErase ? 0U : 255U);
        }
        EXPECT_GT(fully, before.size() / 3);
        if (!isErase) {
            EXPECT_GT(fully, before.size() * 95 / 100);
        }
    }

    // Nonsense positions paint nothing.
    const std::vector<std::uint32_t> painted = fixture.pixels();
    const double nan = std::nan("");
    segment({nan, nan}, {100, 100}, erase);
    segment({100, 100}, {1e300, -1e300}, erase);
    segment({-5000, -5000}, {-4000, -4000}, erase);
    EXPECT_EQ(fixture.pixels(), painted);
}

TEST_P(Strokes, ShapesKeepTheirPlaceOnTheScreenWhenThePhotoIsTurned)
{
    brush.setBrushType(static_cast<int>(BrushType::triangle));
    brush.setUnitBrushSize(0.5);
    fixture.engine.compositor.backgroundMode = BackgroundWhite;
    QImage frames[2];
    for (const int turned : {0, 1}) {
        fixture.open(plainImage({300, 300}, Qt::black));
        fixture.engine.canvas.fgImage.rotation = turned * std::numbers::pi / 2;
        segment({195, 422}, {195, 422}, erase);
        frames[turned] = fixture.frame();
    }
    int different = 0;
    int white = 0;
    for (int y = 0; y < 844; ++y)
        for (int x = 0; x < 390; ++x) {
            different += std::abs(qRed(frames[0].pixel(x, y)) - qRed(frames[1].pixel(x, y))) > 48;
            white += qRed(frames[0].pixel(x, y)) > 128;
        }
    EXPECT_GT(white, 1000);
    EXPECT_LT(different, white / 100);
    // It stands on its base: a tip at the top.
    int whiteAbove = 0;
    for (int x = 0; x < 390; ++x)
        whiteAbove += qRed(frames[0].pixel(x, 422 - 40)) > 128;
    EXPECT_TRUE(whiteAbove > 0 && whiteAbove < 80) << whiteAbove;
}

TEST_P(Strokes, ATapOrAShortMoveChangesNothingAndAStrokeTakesOneLevel)
{
    const QPointF start = at(100, 100);
    touch(start, TouchBegan);
    EXPECT_TRUE(fixture.engine.overlays.drawBrush);
    touch(start + QPointF(4.0, 0), TouchMoved); // exactly four points is not yet a stroke
    touch(start + QPointF(4.0, 0), TouchEnded);
    EXPECT_EQ(history.levels(), 0U);
    const std::vector<std::uint8_t> untouched(std::size_t(width) * height, 255);
    EXPECT_EQ(fixture.alpha(), untouched);

    touch(start, TouchBegan);
    touch(start + QPointF(4.1, 0), TouchMoved);
    EXPECT_FALSE(fixture.toolsShown);
    touch(start + QPointF(40, 0), TouchMoved);
    touch(start + QPointF(60, 0), TouchEnded);
    EXPECT_TRUE(fixture.toolsShown);
    EXPECT_EQ(history.levels(), 1U);
    EXPECT_EQ(fixture.alpha()[100 * width + 155], 0); // the last segment runs to the lifting
    history.undo();
    EXPECT_EQ(fixture.alpha(), untouched);

    for (int i = 0; i < 2; ++i) { // the end of the first is lost
        touch(start, TouchBegan);
        touch(start + QPointF(20, 0), TouchMoved);
    }
    EXPECT_EQ(history.levels(), 2U);
}

TEST_P(Strokes, FollowTheOffsetAndTheZoom)
{
    brush.setUnitBrushOffset(0.5); // 48.75 points above the finger
    touch(at(100, 150), TouchBegan);
    touch(at(110, 150), TouchMoved);
    touch(at(110, 150), TouchEnded);
    EXPECT_EQ(fixture.alpha()[101 * width + 105], 0);
    EXPECT_EQ(fixture.alpha()[150 * width + 105], 255);

    const double atOne = brush.brushSize();
    fixture.engine.canvas.fgImage.scale = 2;
    EXPECT_DOUBLE_EQ(brush.brushSize(), atOne / 2);
}

// What GPUs of which little is known may do to a program; the photo's colours survive it.
TEST_P(Strokes, AProgramThatFailsOrMisbehavesNeverTouchesAColour)
{

    const auto loadErasing = [&](const QByteArray& before, bool isWhole) {
        ShaderSet shaders(fixture.context, [&](const QString& file) {
            const QByteArray text = TemporaryFolder::read(file);
            return file.contains(QStringLiteral("EraseShader")) ? before + (isWhole ? text : "")
                                                                : text;
        });
        const bool isLoaded = shaders.loadBrushShaders();
        fixture.engine.shaders.eraseProgram = std::move(shaders.eraseProgram);
        return isLoaded;
    };
    const std::vector<std::uint32_t> before = fixture.pixels();
    const auto erased = [&] {
        segment(at(60, 60), at(200, 120), erase);
        return fixture.pixels();
    };
    const auto coloursOf = [](std::vector<std::uint32_t> pixels) {
        for (std::uint32_t& pixel : pixels)
            pixel &= 0xFFFFFFU;
        return pixels;
    };

    // One that doesn't compile draws nothing, least of all with the program used before it.
    EXPECT_TRUE(fixture.engine.shaders.fgProgram.use({}));
    EXPECT_FALSE(loadErasing("nonsense", false));
    EXPECT_EQ(erased(), before);

    // One that would paint the photo reaches its mask alone.
    EXPECT_TRUE(loadErasing("void main() { gl_FragColor = vec4(1.0, 0.0, 0.0, 0.5); }", false));
    const std::vector<std::uint32_t> painted = erased();
    EXPECT_NE(painted, before);
    EXPECT_EQ(coloursOf(painted), coloursOf(before));

    // One too long for the GPU with sixteen stamps in it draws them one by one.
    history.undo();
    fixture.open(placeImage(width, height));
    EXPECT_TRUE(loadErasing("", true));
    const std::vector<std::uint32_t> expected = erased();
    fixture.open(placeImage(width, height));
    EXPECT_TRUE(loadErasing("#if STAMPS_PER_DRAW > 1\n#error too long\n#endif\n", true));
    EXPECT_EQ(fixture.engine.shaders.eraseProgram.stampsPerDraw, 1);
    const std::vector<std::uint32_t> oneByOne = erased();
    for (std::size_t i = 0; i < expected.size(); ++i) // rounded once a stamp instead of once
        ASSERT_NEAR(int(oneByOne[i] >> 24), int(expected[i] >> 24), 8) << i;
}

TEST(Brush, IsAsItWasLeftAlsoWithNothingAndWithAShapeThatIsNone)
{
    EngineFixture fixture;
    EXPECT_FLOAT_EQ(float(fixture.engine.brush.unitBrushSoft()), 0.1F);
    BrushPreferences(fixture.defaults).saveUnitBrushSize(0.0);
    BrushPreferences(fixture.defaults).saveUnitBrushSoft(-3.0);
    BrushPreferences(fixture.defaults).saveUnitBrushOffset(std::nan(""));
    BrushPreferences(fixture.defaults).saveBrushType(5);
    MaskEditorEngine next(fixture.view, fixture.context, fixture.defaults);
    EXPECT_EQ(next.brush.unitBrushSize(), 0.0);
    EXPECT_FLOAT_EQ(float(next.brush.unitBrushSoft()), 0.1F);
    EXPECT_EQ(next.brush.unitBrushOffset(), 0.0);
    EXPECT_EQ(next.brush.currentBrushNumSides(), 100); // a circle
}

} // namespace
} // namespace pelmira
