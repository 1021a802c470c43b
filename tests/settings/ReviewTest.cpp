#include "settings/AppInfo.h"
#include "settings/ReviewHelper.h"
#include "settings/StorePages.h"
#include "settings/ZKLReviewHelper.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

namespace pelmira {
namespace {

using namespace Qt::StringLiterals;

class ReviewTest : public ::testing::Test {
protected:
    void SetUp() override { QCoreApplication::setApplicationVersion(u"1.0"_s); }
    void TearDown() override
    {
        QCoreApplication::setApplicationVersion({});
        AppInfo::setAppleId({});
        AppInfo::setAffiliateToken({});
        AppInfo::setReviewCampaignToken({});
    }
    /// Whether the user is asked at the end of a visit to the save screen, in a process of its own.
    bool isAsked()
    {
        PerstistenceHelper persistence(defaults);
        persistence.incrementNumSaves();
        bool asked = false;
        ZKLReviewHelper helper(
            defaults, [&] { asked = true; }, [this] { return now; });
        ReviewHelper::showReviewRequestIfWeShould(persistence, helper);
        return asked;
    }
    bool isAskedAt(const QString& version, int days)
    {
        QCoreApplication::setApplicationVersion(version);
        now = start.addDays(days);
        return isAsked();
    }
    void saveFiveTimes()
    {
        for (int i = 0; i < 5; ++i)
            PerstistenceHelper(defaults).incrementNumSaves();
    }

    const test::TemporaryFolder folder;
    UserDefaults defaults{folder.path("preferences.json")};
    const QDateTime start = QDateTime::fromSecsSinceEpoch(1'700'000'000, Qt::UTC);
    QDateTime now = start;
};

TEST_F(ReviewTest, IsAskedForAtTheFifthEvent)
{
    for (int i = 1; i < 5; ++i)
        EXPECT_FALSE(isAsked()) << i;
    EXPECT_TRUE(isAsked());
    EXPECT_FALSE(isAsked());
}

TEST_F(ReviewTest, IsAskedForOnceAVersionAndNeverTwiceInNinetyDays)
{
    saveFiveTimes();
    EXPECT_TRUE(isAskedAt(u"1.0"_s, 0));
    EXPECT_FALSE(isAskedAt(u"1.1"_s, 89));
    EXPECT_FALSE(isAskedAt(u"1.0"_s, 200)); // of that version already
    EXPECT_TRUE(isAskedAt(u"1.1"_s, 200));
    EXPECT_FALSE(isAskedAt(u"1.2"_s, 289));
    EXPECT_TRUE(isAskedAt(u"1.2"_s, 290));
}

TEST_F(ReviewTest, AWrongClockDoesNotKeepItAwayForEver)
{
    saveFiveTimes();
    EXPECT_TRUE(isAskedAt(u"1.0"_s, 100 * 365));
    EXPECT_FALSE(isAskedAt(u"1.1"_s, 0)); // set right: the wait begins
    EXPECT_FALSE(isAskedAt(u"1.1"_s, 89));
    EXPECT_TRUE(isAskedAt(u"1.1"_s, 90));
}

TEST_F(ReviewTest, IsNotAskedForOnceTheUserHasGoneToRate)
{
    saveFiveTimes();
    ZKLConfigManager(defaults).setHasRated();
    EXPECT_FALSE(isAsked());
}

TEST_F(ReviewTest, ThePageNeedsTheIdentifierAndBothTokens)
{
    QStringList opened;
    const auto go = [&](const StorePages& store) {
        return ReviewHelper::gotoReviews(store,
                                         [&](const QUrl& page) { opened << page.toString(); });
    };
    const StorePages store(u"https://store.example.org"_s);
    EXPECT_EQ(store.appPage(), QUrl());
    AppInfo::setAppleId(u"12"_s);
    AppInfo::setAffiliateToken(u"a&b"_s);
    EXPECT_FALSE(go(store));
    AppInfo::setReviewCampaignToken(u"PelmiraReview"_s);
    EXPECT_FALSE(go(StorePages({})));
    EXPECT_TRUE(go(store));
    EXPECT_EQ(opened, QStringList(u"https://store.example.org/app/itunes-u/id12"
                                  "?action=write-review&at=a%26b&ct=PelmiraReview"_s));
    EXPECT_EQ(store.appPage(), QUrl(u"https://store.example.org/app/id12"_s));
    EXPECT_EQ(store.productPage(34, u"c"_s),
              QUrl(u"https://store.example.org/app/id34?at=a%26b&ct=c"_s));
    AppInfo::setAffiliateToken({});
    EXPECT_EQ(store.productPage(34, {}), QUrl(u"https://store.example.org/app/id34"_s));
    EXPECT_FALSE(go(store));
}

TEST_F(ReviewTest, TheMakersFileFillsTheApplicationsValues)
{
    AppInfo::fill();
    EXPECT_TRUE(AppInfo::appleId() && AppInfo::affiliateToken() && AppInfo::termsURLStr() &&
                AppInfo::privacyURLStr());
    EXPECT_EQ(AppInfo::reviewCampaignToken(), u"PelmiraReview"_s);
    EXPECT_TRUE(StorePages::ofMaker().writeReviewPage().isValid());
    QCoreApplication::setApplicationVersion({});
    EXPECT_EQ(AppInfo::version(), u"unknown"_s);
}

} // namespace
} // namespace pelmira
