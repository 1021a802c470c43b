#include "refine/RefineEdges.h"
#include "platform/base/ParallelJobs.h"
#include "refine/EdgeRefiner.h"
#include "support/PaddedImage.h"
#include "support/Test.h"

namespace pelmira {
namespace {

/// A photo of something reddish before something bluish, both a little uneven, with an edge that is
/// two pixels wide, and rows that are longer than they need be.
struct Picture : testing::PaddedImage {
    std::uint32_t width;
    std::uint32_t height;
    std::vector<float> truth; // alpha, 0 to 1

    using Shape = std::function<double(double x, double y)>; // distance inwards, in pixels

    Picture(std::uint32_t w, std::uint32_t h, const Shape& shape)
        : PaddedImage(w, h, 3), width(w), height(h)
    {
        fill([&](std::uint32_t x, std::uint32_t y) {
            const double seen = std::clamp(shape(x, y) / 2 + 0.5, 0.0, 1.0);
            const auto uneven = static_cast<double>((x * 7 + y * 13) % 5);
            const auto mixed = [&](double kept, double erased) {
                return static_cast<std::uint32_t>(
                    std::lround(seen * kept + (1 - seen) * erased + uneven));
            };
            truth.push_back(static_cast<float>(seen)); // row by row
            return (seen >= 0.5 ? 0xFF000000U : 0U) | mixed(200, 60) << 16 | mixed(80, 90) << 8 |
                   mixed(60, 190);
        });
    }
    void setAlpha(std::uint32_t x, std::uint32_t y, std::uint32_t value)
    {
        at(x, y) = (at(x, y) & 0xFFFFFFU) | value << 24;
    }
    /// What lacks or is too much on black and on white, summed over the edge.
    double error()
    {
        double sum = 0;
        for (std::uint32_t y = 0; y < height; ++y)
            for (std::uint32_t x = 0; x < width; ++x) {
                const double shown = alpha(x, y) / 255.0;
                const double trueAlpha = static_cast<double>(truth[std::size_t{y} * width + x]);
                if (trueAlpha <= 0 || trueAlpha >= 1)
                    continue;
                const double red = at(x, y) >> 16 & 255;
                for (const double ground : {0.0, 255.0})
                    sum += std::fabs(shown * red + (1 - shown) * ground - trueAlpha * 202 -
                                     (1 - trueAlpha) * ground);
            }
        return sum;
    }
};

double disc(double x, double y)
{
    return 90 - std::hypot(x - 140, y - 130);
}

TEST(RefineEdges, TheEdgeGetsAsSoftAsThePhotosAndLosesTheOldBackground)
{
    Picture picture(300, 270, disc);
    Picture raw = picture;
    ASSERT_TRUE(refineEdges(picture.span()));
    EXPECT_LT(picture.error(), 0.4 * raw.error());
    EXPECT_FALSE(picture.hasStray());
    for (std::uint32_t y = 0; y < picture.height; ++y)
        for (std::uint32_t x = 0; x < picture.width; ++x) {
            if (std::fabs(disc(x, y)) > 8) {
                ASSERT_EQ(picture.at(x, y), raw.at(x, y)) << x << ", " << y;
            }
            if (picture.alpha(x, y) > 60) {
                ASSERT_LT(picture.at(x, y) & 255, 100U) << "blue at " << x << ", " << y;
            }
        }
}

TEST(RefineEdges, SpeckleGoesWithoutAHaloAndWhatHasNoBoundaryStays)
{
    const auto setSquare = [](Picture& picture, std::uint32_t x, std::uint32_t y,
                              std::uint32_t side, std::uint32_t alpha) {
        for (std::uint32_t dy = 0; dy < side; ++dy)
            for (std::uint32_t dx = 0; dx < side; ++dx)
                picture.setAlpha(x + dx, y + dy, alpha);
    };
    Picture raw(300, 270, disc);
    Picture clean = raw;
    ASSERT_TRUE(refineEdges(clean.span()));
    for (const std::uint32_t side : {1U, 2U, 4U, 7U}) {
        Picture picture = raw;
        for (const auto& [x, y] : {std::pair{20U, 20U}, {270U, 30U}, {30U, 240U}, {124U, 8U}})
            setSquare(picture, x, y, side, 255); // left over from the background
        for (const auto& [x, y] : {std::pair{140U, 130U}, {96U, 126U}})
            setSquare(picture, x, y, side, 0); // eaten from the subject
        ASSERT_TRUE(refineEdges(picture.span()));
        EXPECT_EQ(picture.words(), clean.words()) << side;
    }

    for (const double everywhere : {-50.0, 50.0}) {
        Picture even(140, 5, [=](double, double) { return everywhere; });
        Picture before = even;
        ASSERT_TRUE(refineEdges(even.span()));
        EXPECT_EQ(even.words(), before.words());
    }
}

// Where nothing in the photo says where the edge should be, it is where the user cut.
TEST(RefineEdges, ACutThroughOneColourStaysWhereItIs)
{
    for (const double slope : {0.0, 0.37}) {
        Picture picture(300, 270, [](double, double) { return 50.0; });
        const auto inside = [&](std::uint32_t x, std::uint32_t y) {
            return (x - 150.0 + slope * (y - 135.0)) / std::hypot(1, slope);
        };
        for (std::uint32_t y = 0; y < picture.height; ++y)
            for (std::uint32_t x = 0; x < picture.width; ++x)
                picture.setAlpha(x, y, inside(x, y) > 0 ? 255 : 0);
        ASSERT_TRUE(refineEdges(picture.span()));
        for (std::uint32_t y = 0; y < picture.height; ++y)
            for (std::uint32_t x = 0; x < picture.width; ++x) {
                const double distance = inside(x, y);
                if (distance < -3) {
                    ASSERT_LT(picture.alpha(x, y), 40U) << x << ", " << y;
                } else if (distance > 3) {
                    ASSERT_GT(picture.alpha(x, y), 215U) << x << ", " << y;
                }
            }
    }
}

// What a soft brush left is what the user wanted, beside a hard edge too.
TEST(RefineEdges, AlphaThatIsSoftAlreadyStays)
{
    struct Case {
        const char* name;
        std::function<double(double)> alphaAcross; // by the distance inwards
    };
    for (const Case& brush : {Case{"wide", [](double d) { return 0.5 + d / 30; }},
                              Case{"narrow", [](double d) { return 0.5 + d / 4; }},
                              Case{"a pixel", [](double d) { return 0.5 + d; }}}) {
        Picture picture(300, 270, disc);
        for (std::uint32_t y = 0; y < picture.height; ++y)
            for (std::uint32_t x = 0; x < picture.width; ++x)
                picture.setAlpha(x, y,
                                 static_cast<std::uint32_t>(std::lround(
                                     255 * std::clamp(brush.alphaAcross(disc(x, y)), 0.0, 1.0))));
        Picture before = picture;
        ASSERT_TRUE(refineEdges(picture.span()));
        std::size_t changed = 0;
        for (std::uint32_t y = 0; y < picture.height; ++y)
            for (std::uint32_t x = 0; x < picture.width; ++x) {
                changed += picture.at(x, y) != before.at(x, y);
                if (const std::uint32_t alpha = before.alpha(x, y); alpha > 30 && alpha < 225) {
                    ASSERT_EQ(picture.at(x, y), before.at(x, y))
                        << brush.name << " at " << x << ", " << y;
                }
            }
        // An edge of one pixel has hard places where it runs along the rows.
        EXPECT_LT(changed, std::string(brush.name) == "a pixel" ? 600U : 1U) << brush.name;
    }
}

TEST(RefineEdges, WhereTheMaskIsHalfTransparentTheEdgeStaysBelowThat)
{
    Picture picture(300, 270, disc);
    for (std::uint32_t y = 0; y < picture.height; ++y)
        for (std::uint32_t x = 0; x < picture.width; ++x)
            if (picture.alpha(x, y))
                picture.setAlpha(x, y, 180);
    ASSERT_TRUE(refineEdges(picture.span()));
    std::size_t between = 0;
    for (std::uint32_t y = 0; y < picture.height; ++y)
        for (std::uint32_t x = 0; x < picture.width; ++x) {
            ASSERT_LE(picture.alpha(x, y), 180U);
            between += picture.alpha(x, y) > 20 && picture.alpha(x, y) < 160;
        }
    EXPECT_GT(between, 300U);
}

TEST(RefineEdges, TheOrderOfTheTilesDoesntMatter)
{
    const EdgeRefiner::Workers backwards = [](std::size_t count, const auto& job) {
        for (std::size_t i = count; i-- > 0;)
            job(i, 0U);
    };
    struct Size {
        std::uint32_t width, height;
    };
    for (const Size size : {Size{420, 390}, {1, 200}, {200, 1}, {128, 129}, {5, 3}}) {
        Picture together(size.width, size.height, [](double x, double y) {
            return 6 * std::sin(x / 9) + 5 * std::cos(y / 7) + (x - y) / 100;
        });
        Picture alone = together;
        ASSERT_TRUE(EdgeRefiner(together.span(), {}, doInParallel).run());
        ASSERT_TRUE(EdgeRefiner(alone.span(), {}, backwards).run());
        EXPECT_EQ(together.words(), alone.words()) << size.width << " by " << size.height;
    }
}

TEST(RefineEdges, StopsBetweenTwoTiles)
{
    Picture picture(700, 700, disc);
    std::stop_source stop;
    std::size_t calls = 0;
    const EdgeRefiner::Workers stopping = [&](std::size_t count, const auto& job) {
        for (std::size_t i = 0; i < count; ++i) {
            if (++calls == 40)
                stop.request_stop();
            job(i, 0U);
        }
    };
    EXPECT_FALSE(EdgeRefiner(picture.span(), stop.get_token(), stopping).run());
    EXPECT_FALSE(refineEdges(picture.span(), stop.get_token()));
}

} // namespace
} // namespace pelmira
