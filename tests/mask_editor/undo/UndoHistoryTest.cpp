#include "mask_editor/drawing/MaskInverter.h"
#include "mask_editor/limits/PlatformUtils.h"
#include "support/EngineFixture.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <vector>

namespace pelmira {
namespace {

using test::TemporaryFolder;
using Plane = std::vector<std::uint8_t>;

constexpr QSize photo{420, 300}; // four columns and three rows of tiles, the last ones cut short

class UndoHistoryTest : public ::testing::Test {
protected:
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
        const auto alpha = static_cast<std::uint32_t>(below(256));
        ASSERT_TRUE(surface().lockTexture());
        surface().changePixels([&](const PixelSpan& pixels) {
            for (int y = r.top(); y <= r.bottom(); ++y)
                for (int x = r.left(); x <= r.right(); ++x) {
                    std::uint32_t& pixel = pixels.row(static_cast<std::uint32_t>(y))[x];
                    pixel = (pixel & 0xFFFFFFU) | alpha << 24;
                }
            return QRegion(r);
        });
        surface().unlockTexture();
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
    }
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
    MallocBlock block(static_cast<std::uint8_t*>(std::malloc(plane.size())));
    std::memcpy(block.get(), plane.data(), plane.size());
    const auto whole =
        ZKLUndoEntry::initWithBuffer(std::move(block), static_cast<std::int32_t>(plane.size()));

    const TemporaryFolder folder;
    const auto fileOf = [&folder](const ZKLUndoEntry& entry) {
        const QString path = folder.path() + QStringLiteral("/mask.data");
        EXPECT_TRUE(entry.saveToURL(path));
        return TemporaryFolder::read(path);
    };
    const QByteArray file = fileOf(*whole);
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
    const std::uint8_t* bytes = tiled->originalDataWithLengthPtr(nullptr);
    EXPECT_EQ(Plane(bytes, bytes + plane.size()), plane);
}

} // namespace
} // namespace pelmira
