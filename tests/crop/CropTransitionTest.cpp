#include "crop/TOCropViewController.h"
#include "support/ShownScreen.h"

namespace pelmira {
namespace {

constexpr QRectF thumbnail(40, 60, 80, 60);

/// The screen that the tool grows out of: green all over.
class GreenScreen final : public Screen {
public:
    explicit GreenScreen(QUrl layout) : _layout(std::move(layout)) {}
    QUrl layoutFile() const override { return _layout; }

private:
    const QUrl _layout;
};

/// The crop tool on the real stack of screens, with a clock that the test winds.
struct CropTransition : testing::Test {
    void present(std::function<void()> completion = {})
    {
        tool->presentAnimatedFromParentViewController(
            navigation, tool->image(), thumbnail, QRect(0, 0, 100, 300), {}, std::move(completion));
    }
    void dismiss(std::function<void()> completion = {}, const std::function<void()>& setup = {})
    {
        tool->dismissAnimatedFromParentViewController(navigation, thumbnail, setup,
                                                      std::move(completion));
    }
    void pass(double seconds)
    {
        now += seconds;
        if (tool)
            tool->displayLinkFired();
    }
    /// How green the tool's surround is, from 0 to 255.
    int green() { return shown.window.grabWindow().pixelColor(380, 500).green(); }

    const TemporaryFolder folder;
    const QString layout = folder.write(
        "Green.qml", "import QtQuick\nRectangle { property QtObject screen; color: '#00ff00' }");
    test::ShownScreen shown{std::make_shared<GreenScreen>(QUrl::fromLocalFile(layout)), {390, 844}};
    NavigationController& navigation = shown.navigation;
    double now = 100.0;
    std::shared_ptr<TOCropViewController> tool = std::make_shared<TOCropViewController>(
        plainImage({400, 300}, Qt::red), [this] { return now; });
};

TEST_F(CropTransition, TheScreenBelowShowsThroughOnTheWayInAndOut)
{
    bool presented = false;
    present([&] { presented = true; });
    const TOCropViewControllerTransitioning& way = *tool->transitionController();
    EXPECT_EQ(way.frame(), thumbnail);
    EXPECT_EQ(green(), 255);
    std::vector<int> seen;
    for (int i = 0; i < 4; ++i) {
        pass(0.05);
        seen.push_back(green());
    }
    EXPECT_TRUE(std::is_sorted(seen.rbegin(), seen.rend()));
    EXPECT_LT(seen.front(), 255);
    pass(1.0);
    EXPECT_TRUE(presented);
    EXPECT_EQ(way.frame(), tool->cropBoxFrame());
    EXPECT_EQ(tool->cropView().imageCropFrame(), QRect(0, 0, 100, 300));
    EXPECT_LT(green(), 40);

    Screen* seenAtCompletion = nullptr;
    dismiss([&] { seenAtCompletion = navigation.topScreen(); });
    EXPECT_EQ(way.image().size(), QSize(100, 300));
    pass(0.1);
    EXPECT_GT(green(), 40);
    EXPECT_EQ(navigation.topScreen(), tool.get());
    pass(1.0);
    EXPECT_NE(dynamic_cast<GreenScreen*>(seenAtCompletion), nullptr);
    EXPECT_EQ(green(), 255); // at once: the tool doesn't come back for a last look
}

TEST_F(CropTransition, EndsWellWhateverComesBetween)
{
    bool presented = false;
    present([&] { presented = true; });
    pass(0.1);
    // While it grows: the end of that comes first, or it would undo the setup.
    dismiss({}, [&] { EXPECT_TRUE(presented); });
    EXPECT_EQ(navigation.topScreen(), tool.get());

    const auto other = TOCropViewController::initWithImage(tool->image());
    navigation.pushViewController(other); // a file that another program hands over
    const std::weak_ptr<TOCropViewController> gone = tool;
    pass(1.0);
    tool.reset();
    EXPECT_TRUE(waitFor([&] { return gone.expired(); }));
    EXPECT_EQ(navigation.topScreen(), other.get());
    navigation.popViewController();
    EXPECT_NE(dynamic_cast<GreenScreen*>(navigation.topScreen()), nullptr);

    tool = TOCropViewController::initWithImage(other->image());
    present();
    tool->cancelButtonTapped();
    EXPECT_NE(dynamic_cast<GreenScreen*>(navigation.topScreen()), nullptr);
}

} // namespace
} // namespace pelmira
