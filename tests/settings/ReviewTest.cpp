#include "settings/AppInfo.h"
#include "settings/ReviewHelper.h"
#include "settings/StorePages.h"
#include "settings/ZKLReviewHelper.h"
#include "support/Test.h"

#include <QCoreApplication>

namespace pelmira {
namespace {

struct ReviewTest : testing::Test {
    void TearDown() override
    {
        QCoreApplication::setApplicationVersion({});
        AppInfo::setAppleId({});
        AppInfo::setAffiliateToken({});
        AppInfo::setReviewCampaignToken({});
    }
    /// Whether the user is asked at the end of a visit to the save screen, in a process of its own.
    bool isAskedAt(const QString& version, int days)
    {
        QCoreApplication::setApplicationVersion(version);
        PerstistenceHelper persistence(defaults);
        persistence.incrementNumSaves();
        bool asked = false;
        const auto start = QDateTime::fromSecsSinceEpoch(1'700'000'000, Qt::UTC);
        ZKLReviewHelper helper(
            defaults, [&] { asked = true; }, [=] { return start.addDays(days); });
        ReviewHelper::showReviewRequestIfWeShould(persistence, helper);
        return asked;
    }

    const TemporaryFolder folder;
    UserDefaults defaults{folder.path("preferences.json")};
};

TEST_F(ReviewTest, IsAskedForAtTheFifthEventOnceAVersionAndNeverTwiceInNinetyDays)
{
    for (int i = 1; i < 5; ++i)
        EXPECT_FALSE(isAskedAt(u"1.0"_s, 0)) << i;
    EXPECT_TRUE(isAskedAt(u"1.0"_s, 0));
    EXPECT_FALSE(isAskedAt(u"1.1"_s, 89));
    EXPECT_FALSE(isAskedAt(u"1.0"_s, 200)); // of that version already
    EXPECT_TRUE(isAskedAt(u"1.1"_s, 200));
    EXPECT_FALSE(isAskedAt(u"1.2"_s, 289));
    EXPECT_TRUE(isAskedAt(u"1.2"_s, 290));
    // A clock that was wrong doesn't keep it away for ever: set right, the wait begins.
    EXPECT_TRUE(isAskedAt(u"1.3"_s, 100 * 365));
    EXPECT_FALSE(isAskedAt(u"1.4"_s, 0));
    EXPECT_FALSE(isAskedAt(u"1.4"_s, 89));
    EXPECT_TRUE(isAskedAt(u"1.4"_s, 90));
    ZKLConfigManager(defaults).setHasRated();
    EXPECT_FALSE(isAskedAt(u"1.5"_s, 1000));
}

TEST_F(ReviewTest, ThePageNeedsTheIdentifierAndBothTokens)
{
    QUrl opened;
    const auto open = [&](const QUrl& page) { opened = page; };
    const StorePages store(u"https://store.example.org"_s);
    EXPECT_EQ(store.appPage(), QUrl());
    AppInfo::setAppleId(u"12"_s);
    AppInfo::setAffiliateToken(u"a&b"_s);
    EXPECT_FALSE(ReviewHelper::gotoReviews(store, open));
    AppInfo::setReviewCampaignToken(u"PelmiraReview"_s);
    EXPECT_FALSE(ReviewHelper::gotoReviews(StorePages({}), open));
    EXPECT_TRUE(opened.isEmpty());
    EXPECT_TRUE(ReviewHelper::gotoReviews(store, open));
    EXPECT_EQ(opened.toString(), u"https://store.example.org/app/itunes-u/id12"
                                 "?action=write-review&at=a%26b&ct=PelmiraReview"_s);
    EXPECT_EQ(store.appPage(), QUrl(u"https://store.example.org/app/id12"_s));
    EXPECT_EQ(store.productPage(34, u"c"_s),
              QUrl(u"https://store.example.org/app/id34?at=a%26b&ct=c"_s));
}

} // namespace
} // namespace pelmira
