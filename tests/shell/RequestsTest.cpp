#include "shell/CommandLine.h"
#include "shell/FakeStack.h"
#include "shell/OpenRequests.h"
#include "support/Test.h"
#include "support/WaitFor.h"

namespace pelmira {
namespace {

using test::PlainScreen;
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
    stack.add(std::make_shared<PlainScreen>(), true);
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
    stack.add(std::make_shared<PlainScreen>(), true);
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
    ASSERT_TRUE(waitFor([this] { return wasKept; }));
    EXPECT_TRUE(opened.isEmpty());
    isSaving = isFilling = false;
    passTime(1.0);
    ASSERT_TRUE(waitFor([this] { return !opened.isEmpty(); }));
    EXPECT_EQ(opened, QStringList(u"/some/b.jpg"_s));
}

TEST(CommandLineTest, PhotosArePathsOrAddressesAndTheRestIsRefused)
{
    using Request = CommandLine::Request;
    struct Case {
        QStringList arguments;
        Request request;
        QStringList photos;
    };
    const Case cases[] = {
        {{}, Request::Run, {}},
        {{u"a b.jpg"_s, u"../c.png"_s, u"/d.webp"_s},
         Request::Run,
         {u"/here/a b.jpg"_s, u"/c.png"_s, u"/d.webp"_s}},
        {{u"file:///tmp/a%20photo.jpg"_s}, Request::Run, {u"/tmp/a photo.jpg"_s}},
        {{u"--"_s, u"--help"_s, u"-x.jpg"_s}, Request::Run, {u"/here/--help"_s, u"/here/-x.jpg"_s}},
        {{u"a.jpg"_s, u"--help"_s}, Request::Help, {}},
        {{u"-v"_s}, Request::Version, {}},
        {{u"-platform"_s, u"xcb"_s, u"--version"_s}, Request::Version, {}},
        {{u"--frob"_s}, Request::Refuse, {}},
        {{u"https://example.org/a.jpg"_s, u"b.jpg"_s}, Request::Refuse, {u"/here/b.jpg"_s}},
        {{u"file:2//a.jpg"_s}, Request::Refuse, {}},
        {{u""_s}, Request::Run, {}},
    };
    for (const Case& each : cases) {
        const CommandLine line = CommandLine::parse(each.arguments, u"/here"_s);
        EXPECT_EQ(line.request, each.request) << qPrintable(each.arguments.join(u' '));
        EXPECT_EQ(line.photos, each.photos) << qPrintable(each.arguments.join(u' '));
        EXPECT_EQ(line.problem.isEmpty(), each.request != Request::Refuse);
    }
}

} // namespace
} // namespace pelmira
