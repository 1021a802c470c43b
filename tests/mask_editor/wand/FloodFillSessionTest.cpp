#include "mask_editor/wand/FloodFillSession.h"
#include "mask_editor/wand/ColorDistance.h"
#include "support/PaddedImage.h"
#include "support/Test.h"

namespace pelmira {
namespace {

using testing::PaddedImage;

constexpr std::uint32_t White = 0xFFFFFFFF;
constexpr std::uint32_t Black = 0xFF000000;

/// The fill in its plain form, which defines the wand's result: each tolerance puts alpha back and
/// erases what is near in colour and reached from the start, pixel by pixel.
class PlainFill {
public:
    PlainFill(const PaddedImage& image, QPoint start)
        : _original(image), _start(start),
          _distances(std::size_t(image.span().width) * image.span().height)
    {
        const auto color = image.at(std::uint32_t(start.x()), std::uint32_t(start.y()));
        colorDistances(_original.span(), std::bit_cast<StoredColor>(color), _distances.data());
        _hasColor = color >> 24 != 0;
    }
    void setStart(QPoint start) { _start = start; }
    PaddedImage filled(unsigned tolerance) const
    {
        PaddedImage image = _original;
        std::vector<std::uint8_t> distances = _distances;
        const QRect bounds(0, 0, int(image.span().width), int(image.span().height));
        const auto passes = [&](QPoint at) {
            return bounds.contains(at) &&
                   distances[std::size_t(at.y()) * image.span().width + at.x()] < tolerance;
        };
        std::vector<QPoint> seeds{_start};
        if (!passes(_start)) // yields to the pixel on its right
            seeds[0].rx() += 1;
        while (_hasColor && !seeds.empty()) {
            const QPoint at = seeds.back();
            seeds.pop_back();
            if (!passes(at))
                continue;
            image.at(std::uint32_t(at.x()), std::uint32_t(at.y())) &= 0xFFFFFFU;
            distances[std::size_t(at.y()) * image.span().width + at.x()] = UnreachableDistance;
            for (const QPoint step : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)})
                seeds.push_back(at + step);
        }
        return image;
    }

private:
    const PaddedImage _original;
    QPoint _start;
    std::vector<std::uint8_t> _distances;
    bool _hasColor = false;
};

FloodFillSession sessionOn(const PaddedImage& image, QPointF start)
{
    const PixelSpan& span = image.span();
    return {span.pixels, span.width, span.height, span.bytesPerRow, start};
}

/// True if every word that differs lies in the region.
bool covers(const QRegion& region, const PaddedImage& before, const PaddedImage& after)
{
    for (std::uint32_t y = 0; y < before.span().height; ++y)
        for (std::uint32_t x = 0; x < before.span().width; ++x)
            if (before.at(x, y) != after.at(x, y) && !region.contains(QPoint(int(x), int(y))))
                return false;
    return true;
}

/// Several tiles, the last ones partial: soft slopes with grain, so that fills creep through
/// tiles in many pieces, with whole tiles and single pixels erased or half erased.
PaddedImage tiledImage(std::mt19937& random, int width, int height)
{
    const auto below = [&](unsigned bound) { return static_cast<std::uint32_t>(random() % bound); };
    PaddedImage image(std::uint32_t(width), std::uint32_t(height), below(9));
    const std::uint32_t grain = 1 + below(90);
    const std::uint32_t slope = below(4);
    const std::uint32_t erased = 10 + below(1000);
    const std::uint32_t erasedColumn = below(6);
    const bool isSoft = below(2) == 0;
    image.fill([&](std::uint32_t x, std::uint32_t y) {
        const std::uint32_t value = (x * slope / 2 + y / 3 + below(grain)) & 0xFF;
        const std::uint32_t color = value | (value / 2) << 8 | (255 - value) << 16;
        if (x / 64 == erasedColumn || below(erased) == 0)
            return color;
        return color | (isSoft && y / 64 == 1 ? 200 + below(56) : 255) << 24;
    });
    return image;
}

QPoint somewhereIn(const PaddedImage& image, std::mt19937& random)
{
    const int x = int(random() % image.span().width);
    return {x, int(random() % image.span().height)};
}

/// The dial once in order, and at random, against the plain form.
void expectEqualsOracle(const PaddedImage& original, QPoint start, std::mt19937& random)
{
    PaddedImage image = original;
    FloodFillSession session = sessionOn(image, start);
    ASSERT_EQ(image.words(), original.words()) << "making a session must change nothing";
    PlainFill plain(original, start);
    for (int step = 0; step < 330; ++step) {
        const auto tolerance = static_cast<std::uint8_t>(step < 256 ? step : random() % 256);
        if (step > 290) { // its start moved
            const QPoint moved = somewhereIn(original, random);
            session.setStartPoint(moved);
            plain.setStart(moved);
        }
        const PaddedImage before = image;
        const QRegion changed = session.setTolerance(tolerance);
        ASSERT_EQ(image.words(), plain.filled(tolerance).words()) << "tolerance " << int(tolerance);
        ASSERT_LE(changed.rectCount(), 64);
        if (step % 8 == 0) {
            ASSERT_TRUE(covers(changed, before, image));
        }
    }
}

TEST(FloodFillSession, EqualsThePlainFormAcrossTilesAtAllTolerances)
{
    std::mt19937 random(21);
    for (const QSize size : {QSize(64, 64), QSize(65, 63), QSize(129, 128), QSize(200, 150),
                             QSize(1, 300), QSize(300, 1), QSize(7, 5), QSize(257, 190)}) {
        for (int round = 0; round < 3; ++round) {
            const PaddedImage original = tiledImage(random, size.width(), size.height());
            const QPoint start = somewhereIn(original, random);
            ASSERT_NO_FATAL_FAILURE(expectEqualsOracle(original, start, random))
                << size.width() << " by " << size.height() << ", round " << round;
        }
    }
}

TEST(FloodFillSession, FollowsAMazeThroughEveryTile)
{
    // One pixel of corridor and one of wall, to and fro from the first row to the last.
    constexpr std::uint32_t Side = 203;
    PaddedImage corridor(Side, Side, 3);
    corridor.fill([](std::uint32_t x, std::uint32_t y) {
        return y % 2 == 0 || x == (y % 4 == 1 ? Side - 1 : 0) ? White : Black;
    });
    for (const bool isTransposed : {false, true}) {
        PaddedImage image = corridor;
        if (isTransposed)
            image.fill([&](auto px, auto py) { return corridor.at(py, px); });
        const PaddedImage expected = PlainFill(image, {0, 0}).filled(30);
        sessionOn(image, {0, 0}).setTolerance(30);
        EXPECT_EQ(image.words(), expected.words());
        EXPECT_EQ(image.alpha(Side - 1, Side - 1), 0) << "the end is reached";
    }
}

TEST(FloodFillSession, ReportsOnlyTheTilesThatChanged)
{
    PaddedImage image(640, 640, 0);
    image.fill([](auto x, auto y) {
        const bool isSpot = x >= 200 && x < 210 && y >= 400 && y < 410;
        return isSpot ? 0xFFE0E0E0U : White;
    });
    FloodFillSession session = sessionOn(image, {0, 0});
    EXPECT_EQ(session.setTolerance(20), QRegion(0, 0, 640, 640));
    EXPECT_EQ(session.setTolerance(60), QRegion(192, 384, 64, 64));
    EXPECT_TRUE(session.setTolerance(70).isEmpty());
    EXPECT_EQ(session.setTolerance(20), QRegion(192, 384, 64, 64));
}

TEST(FloodFillSession, AStartThatCannotBeFilledChangesNothing)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const QPointF start : {QPointF(1, 1), QPointF(-0.6, 0), QPointF(0, 2.5), QPointF(1e300, 0),
                                QPointF(nan, 0), QPointF(0, -1e300)}) {
        PaddedImage image(3, 3, 1);
        image.fill([](auto x, auto y) { return x == 1 && y == 1 ? 0x00FFFFFF : White; });
        const PaddedImage original = image;
        FloodFillSession session = sessionOn(image, start);
        EXPECT_TRUE(session.setTolerance(255).isEmpty());
        EXPECT_EQ(image.words(), original.words());
    }
}

TEST(FloodFillSession, GivesBackWhatWasChangedElsewhere)
{
    std::mt19937 random(23);
    for (int round = 0; round < 20; ++round) {
        const PaddedImage original = tiledImage(random, 390, 130); // erased, opaque, mixed tiles
        PaddedImage image = original;
        const auto invert = [&image] {
            image.fill([&](auto x, auto y) { return image.at(x, y) ^ 0xFF000000U; });
        };
        FloodFillSession session = sessionOn(image, {3, 100});
        const PlainFill plain(original, {3, 100});
        // Before the first fill as well: what counts is the moment of the session's making.
        for (const std::uint8_t tolerance : {std::uint8_t{51}, std::uint8_t{51}, std::uint8_t{0}}) {
            invert();
            session.alphaChangedElsewhere();
            const PaddedImage inverted = image;
            EXPECT_TRUE(covers(session.setTolerance(tolerance), inverted, image));
            ASSERT_EQ(image.words(), plain.filled(tolerance).words());
        }
    }
}

TEST(FloodFillSession, FollowsTheBufferToAnotherAddressAndStride)
{
    PaddedImage first(20, 10, 0);
    first.fill([](auto x, auto y) { return x > 10 && y > 5 ? Black : White; });
    PaddedImage second(20, 10, 7);
    second.fill([&](auto x, auto y) { return first.at(x, y) ^ 0x0F000000U; });
    FloodFillSession session = sessionOn(first, {0, 0});
    session.setTolerance(51);
    const PaddedImage firstAfter = first;
    const QRegion changed =
        session.setTolerance(51, second.span().pixels, second.span().bytesPerRow);
    EXPECT_EQ(changed.boundingRect(), QRect(0, 0, 20, 10));
    for (std::uint32_t y = 0; y < 10; ++y)
        for (std::uint32_t x = 0; x < 20; ++x)
            ASSERT_EQ(second.at(x, y), first.at(x, y));
    EXPECT_FALSE(second.hasStray());
    EXPECT_EQ(first.words(), firstAfter.words());
}

TEST(FloodFillSession, WorksOnACopyOfAnImage)
{
    const QImage image = plainImage({7, 5}, Qt::white);
    const auto session = FloodFillSession::initWithImage(image, {0, 0});
    session->setTolerance(51);
    EXPECT_EQ(qAlpha(session->imageFromImageData().pixel(4, 2)), 0);
    EXPECT_EQ(qAlpha(image.pixel(4, 2)), 255);
    EXPECT_EQ(FloodFillSession::initWithImage(QImage(), {0, 0}), nullptr);
    EXPECT_TRUE(FloodFillSession(nullptr, 0, 0, 0, {0, 0}).setTolerance(255).isEmpty());
}

} // namespace
} // namespace pelmira
