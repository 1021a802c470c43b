#include "background_editor/filters/PatternBlurHelper.h"

#include "support/Test.h"

#include <gmock/gmock.h>

namespace pelmira {
namespace {

using testing::ElementsAre;

/// A filter that takes as long as the test wants.
class SlowFilter final : public FilterContext {
public:
    struct Gate {
        std::atomic<bool> isOpen = true;
        std::atomic<int> begun = 0;
        std::vector<double> blurs; ///< on the filter queue

        void set(bool open)
        {
            isOpen = open;
            isOpen.notify_all();
        }
    };

    explicit SlowFilter(std::shared_ptr<Gate> gate) : _gate(std::move(gate)) {}

    QImage blurredImage(const QImage& image, double inputRadius, bool isWrapped) override
    {
        _gate->blurs.push_back(inputRadius);
        ++_gate->begun;
        _gate->isOpen.wait(false);
        return FilterContext::blurredImage(image, inputRadius, isWrapped);
    }

private:
    const std::shared_ptr<Gate> _gate;
};

struct PatternBlurHelperTest : testing::Test {
    std::shared_ptr<PatternBlurHelper> makeHelper()
    {
        return std::make_shared<PatternBlurHelper>(plainImage({8, 8}, QColor(90, 60, 30)), false,
                                                   std::make_unique<SlowFilter>(gate));
    }
    void ask(PatternBlurHelper& helper, double blur, double light = 0.0, double hue = 0.0)
    {
        helper.doFilterWithBlur(blur, light, hue,
                                [this](const QImage& image, double b, double, double) {
                                    delivered.push_back(b);
                                    shown = image;
                                });
    }
    /// With a blur of ten under way until the gate opens.
    std::shared_ptr<PatternBlurHelper> makeRunning()
    {
        gate->set(false);
        auto helper = makeHelper();
        ask(*helper, 10);
        EXPECT_TRUE(drainUntil([&] { return gate->begun == 1; }));
        return helper;
    }
    bool waitFor(std::size_t deliveries)
    {
        return drainUntil([&] { return delivered.size() >= deliveries; });
    }
    /// Once the helper is gone nothing can come any more.
    bool waitForTheEnd(std::shared_ptr<PatternBlurHelper>& helper)
    {
        const std::weak_ptr<PatternBlurHelper> weak = helper;
        helper.reset();
        return drainUntil([&] { return weak.expired(); });
    }

    std::shared_ptr<SlowFilter::Gate> gate = std::make_shared<SlowFilter::Gate>();
    std::vector<double> delivered;
    QImage shown;
};

TEST_F(PatternBlurHelperTest, OfManyRequestsTheRunningOneAndTheLatestAreDelivered)
{
    auto helper = makeRunning();
    for (int blur = 11; blur <= 30; ++blur)
        ask(*helper, blur);
    gate->set(true);
    ASSERT_TRUE(waitFor(2));
    ASSERT_TRUE(waitForTheEnd(helper));
    EXPECT_THAT(delivered, ElementsAre(10, 30));
    EXPECT_THAT(gate->blurs, ElementsAre(10, 30));
}

TEST_F(PatternBlurHelperTest, CancelStopsARunUnderWay)
{
    auto helper = makeRunning();
    ask(*helper, 20);
    helper->cancel();
    gate->set(true);
    ASSERT_TRUE(waitForTheEnd(helper));
    EXPECT_THAT(delivered, testing::IsEmpty());
    EXPECT_THAT(gate->blurs, ElementsAre(10));
}

TEST_F(PatternBlurHelperTest, OnlyAnotherBlurIsBlurredAgain)
{
    auto helper = makeHelper();
    const auto askAndWait = [&](double blur, double light, double hue) {
        ask(*helper, blur, light, hue);
        ASSERT_TRUE(waitFor(delivered.size() + 1));
    };
    askAndWait(10, 0, 0);
    const QImage blurred = shown;
    askAndWait(10, 0.2, 0); // brighter, from the same blurred picture
    EXPECT_GT(qRed(shown.pixel(4, 4)), qRed(blurred.pixel(4, 4)));
    askAndWait(10, 0, 0.5);
    EXPECT_NE(shown.pixel(4, 4), blurred.pixel(4, 4));
    askAndWait(10, 0, 0);
    EXPECT_EQ(shown.cacheKey(), blurred.cacheKey());
    askAndWait(10.7, 0, 0); // as good as the same; the request is what is remembered
    askAndWait(11.4, 0, 0);
    EXPECT_EQ(shown.cacheKey(), blurred.cacheKey());
    askAndWait(12.3, 0, 0);
    askAndWait(0, 0, 0); // the picture itself
    EXPECT_EQ(shown.cacheKey(), helper->originalImage().cacheKey());
    EXPECT_THAT(gate->blurs, ElementsAre(10, 12.3));
}

TEST_F(PatternBlurHelperTest, ABlurGoesRoundTheEdgesOrExtendsThem)
{
    const QImage halves = paintedImage(
        {16, 16}, [](int x, int) { return x < 8 ? qRgb(0, 0, 0) : qRgb(255, 255, 255); });
    const auto blurredCorner = [&](bool wrapBlur) {
        auto helper = std::make_shared<PatternBlurHelper>(halves, wrapBlur);
        ask(*helper, 2);
        EXPECT_TRUE(waitFor(delivered.size() + 1));
        return qRed(shown.pixel(0, 0));
    };
    EXPECT_LT(blurredCorner(false), 3);
    EXPECT_NEAR(blurredCorner(true), 102, 10);
}

} // namespace
} // namespace pelmira
