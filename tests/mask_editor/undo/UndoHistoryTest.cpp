#include "mask_editor/drawing/MaskInverter.h"
#include "mask_editor/limits/PlatformUtils.h"
#include "support/EngineFixture.h"
#include "support/Masks.h"

namespace pelmira {
namespace {

using test::Plane;

constexpr QSize photo{420, 300}; // four columns and three rows of tiles, the last ones cut short

struct UndoHistoryTest : testing::Test {
    void SetUp() override { fixture.open(placeImage(photo.width(), photo.height())); }

    OGLESMappedTexture& surface() { return *fixture.engine.canvas.fgMappedTexture; }
    int below(int limit) { return static_cast<int>(_random() % unsigned(limit)); }
    QRect somewhere()
    {
        const QRect r(below(photo.width()), below(photo.height()), 1 + below(90), 1 + below(90));
        return r & surface().bounds();
    }

    void writeByCPU(const QRect& r)
    {
        fixture.setAlpha(r, [alpha = below(256)](int, int) { return alpha; });
    }
    void stroke()
    {
        const auto point = [this] {
            return fixture.screenPosOfPixel({double(below(photo.width())), double(below(300))});
        };
        const QPointF from = point();
        fixture.engine.strokes.drawLineFromPoint(from, point(), 40, below(2) == 0);
    }
    void invert()
    {
        maskInvert(fixture.engine.canvas, fixture.engine.shaders, fixture.engine.reader);
    }
    /// What GL has, which is what the user sees.
    Plane shown()
    {
        const QImage image = fixture.frame();
        surface().drawPixels(surface().bounds(), [] {}); // so that it is read back whole
        return fixture.alpha();
    }

    EngineFixture fixture;
    UndoHistory& history = fixture.engine.history;

private:
    std::mt19937 _random{20};
};

TEST_F(UndoHistoryTest, EachLevelComesBackWhateverWasDoneBetween)
{
    EXPECT_EQ(UndoHistory::maxLevels(1535), 20U);
    EXPECT_EQ(UndoHistory::maxLevels(1536), 30U);
    PlatformUtils::overrideDeviceRamMB(1024); // so that its twenty levels are reached
    std::size_t most = 0;
    bool isAvailable = false;
    history.availabilityChanged = [&](bool hasLevels) { isAvailable = hasLevels; };
    std::vector<Plane> expected; // of the levels, the newest last
    for (int step = 0; step < 300; ++step) {
        switch (below(8)) {
        case 0:
        case 1:
            expected.push_back(fixture.alpha());
            if (expected.size() > UndoHistory::maxLevels(PlatformUtils::deviceRamMB()))
                expected.erase(expected.begin());
            ASSERT_TRUE(history.saveUndoBuffer());
            break;
        case 2:
            history.undo();
            if (expected.empty())
                break;
            // Half of the times by the CPU's copy: a look at GL's makes all of it count as new.
            ASSERT_EQ(below(2) == 0 ? shown() : fixture.alpha(), expected.back()) << step;
            expected.pop_back();
            break;
        case 3: // the mask is kept on disk meanwhile
            (void)history.getUndoBuffer();
            break;
        case 4:
            invert();
            break;
        case 5:
        case 6:
            stroke();
            break;
        case 7:
            writeByCPU(somewhere());
            break;
        }
        ASSERT_EQ(history.levels(), expected.size());
        ASSERT_EQ(isAvailable, !expected.empty());
        most = std::max(most, history.levels());
    }
    EXPECT_EQ(most, 20U);
    PlatformUtils::overrideDeviceRamMB(std::nullopt);
}

TEST_F(UndoHistoryTest, UndoTouchesNothingButTheTilesThatHaveChanged)
{
    ASSERT_TRUE(history.saveUndoBuffer());
    writeByCPU(QRect(150, 10, 20, 20)); // in the second tile
    ASSERT_TRUE(surface().lockTexture());
    std::uint32_t* unreported = &surface().lockedPixels().row(250)[10];
    *unreported = 0x77000000U;
    surface().unlockTexture();
    history.undo();
    EXPECT_EQ(fixture.alpha()[15 * photo.width() + 155], 255);
    EXPECT_EQ(*unreported, 0x77000000U);
}

TEST_F(UndoHistoryTest, AMaskInTilesIsWrittenAsOneOfAPlane)
{
    writeByCPU(QRect(100, 100, 200, 130));
    stroke();
    const Plane plane = fixture.alpha();
    const std::shared_ptr<ZKLUndoEntry> tiled = history.getUndoBuffer();
    const auto fileOf = [this](const ZKLUndoEntry& entry) {
        const QString path = fixture.folder.path("mask.data");
        EXPECT_TRUE(entry.saveToURL(path));
        return TemporaryFolder::read(path);
    };
    const QByteArray file = fileOf(*test::entryOf(plane));
    EXPECT_EQ(fileOf(*tiled), file);
    std::size_t raw = 0;
    std::size_t packed = 0;
    for (const auto& tile : tiled->tiles().tiles()) {
        raw += tile->footprint();
        tile->pack();
        packed += tile->footprint();
    }
    EXPECT_LT(packed, raw / 2);
    EXPECT_EQ(fileOf(*tiled), file);
    EXPECT_EQ(test::planeOf(*tiled), plane);
}

} // namespace
} // namespace pelmira
