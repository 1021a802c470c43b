#include "shell/OpenRequests.h"

#include "shell/FakeStack.h"
#include "support/Test.h"
#include "support/WaitFor.h"

namespace pelmira {
namespace {

using namespace Qt::StringLiterals;

struct PlainScreen final : Screen {
    QUrl layoutFile() const override { return {}; }
};

struct OpenRequestsTest : testing::Test {
    void SetUp() override
    {
        requests.comeToFront = [this] { ++timesInFront; };
        requests.openPhotos = [this](const QStringList& photos) {
            EXPECT_EQ(stack.entries.size(), 1U);
            opened = photos;
        };
        requests.keepWork = [this] {
            wasKept = stack.entries.size() > 1;
            isSaving = isFilling;
        };
        requests.hasCutOut = [this] { return isCuttingOut; };
        requests.hasUnfinishedWork = [this] { return isSaving; };
        stack.pushViewController(std::make_shared<PlainScreen>());
    }

    test::FakeStack stack;
    Alert alert;
    OpenRequests requests{stack, alert};
    int timesInFront = 0;
    bool wasKept = false;
    bool isCuttingOut = false;
    bool isSaving = false;
    bool isFilling = false; ///< so that the mask can only be kept later
    QStringList opened;
};

TEST_F(OpenRequestsTest, WithoutACutOutThePhotoIsOpenedWhateverIsOnTop)
{
    stack.presentViewController(std::make_shared<PlainScreen>(), ModalPresentationStyle::FullScreen,
                                true);
    requests.open({});
    EXPECT_EQ(timesInFront, 1);
    EXPECT_EQ(stack.entries.size(), 2U);
    requests.open({u"/a.jpg"_s, u"/b.jpg"_s});
    EXPECT_EQ(timesInFront, 2);
    EXPECT_FALSE(alert.isOpen());
    EXPECT_EQ(opened, QStringList({u"/a.jpg"_s, u"/b.jpg"_s}));
}

TEST_F(OpenRequestsTest, ACutOutIsLeftOnlyIfTheUserSaysSoAndOnceItsPictureIsWritten)
{
    isCuttingOut = true;
    stack.pushViewController(std::make_shared<PlainScreen>());
    stack.presentViewController(std::make_shared<PlainScreen>(), ModalPresentationStyle::FullScreen,
                                true);
    requests.open({u"/a.jpg"_s});
    ASSERT_TRUE(alert.isOpen());
    alert.buttonPressed(false);
    EXPECT_TRUE(opened.isEmpty());
    EXPECT_EQ(stack.entries.size(), 3U);

    isSaving = true;
    requests.open({u"/a.jpg"_s});
    alert.buttonPressed(true);
    requests.open({u"/some/b.jpg"_s}); // the newest counts, and waits for its own answer
    EXPECT_TRUE(alert.title().contains(u"b.jpg"_s));
    isSaving = false;
    passTime(1.0);
    test::waitFor([] { return !drainMainQueue(); });
    EXPECT_EQ(stack.entries.size(), 3U);
    isSaving = true;
    alert.buttonPressed(true);
    EXPECT_TRUE(opened.isEmpty());
    isSaving = false;
    isFilling = true;
    passTime(1.0);
    ASSERT_TRUE(test::waitFor([this] { return wasKept; }));
    EXPECT_TRUE(opened.isEmpty());
    isSaving = isFilling = false;
    passTime(1.0);
    ASSERT_TRUE(test::waitFor([this] { return !opened.isEmpty(); }));
    EXPECT_EQ(opened, QStringList(u"/some/b.jpg"_s));
}

} // namespace
} // namespace pelmira
