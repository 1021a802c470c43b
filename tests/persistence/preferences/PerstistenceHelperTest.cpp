#include "persistence/preferences/PerstistenceHelper.h"

#include "support/TemporaryFolder.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <limits>

namespace pelmira {
namespace {

using namespace Qt::StringLiterals;

class PerstistenceHelperTest : public testing::Test {
protected:
    PerstistenceHelperTest() : defaults(path()) {}

    QString path() const { return folder.path("preferences.json"); }

    const test::TemporaryFolder folder;
    UserDefaults defaults;
};

TEST_F(PerstistenceHelperTest, ValuesSurviveARestart)
{
    PerstistenceHelper helper(defaults);
    EXPECT_EQ(helper.numSaves(), 0);
    EXPECT_FALSE(helper.saveTransparentAsHEIF());
    helper.incrementNumSaves();
    helper.incrementNumSaves();
    helper.setSaveTransparentAsHEIF(true);

    UserDefaults reread(path());
    const PerstistenceHelper restarted(reread);
    EXPECT_EQ(restarted.numSaves(), 2);
    EXPECT_TRUE(restarted.saveTransparentAsHEIF());
    EXPECT_EQ(reread.integerForKey(u"numSaves"_s), 2);
    EXPECT_EQ(reread.boolForKey(u"saveAsHeif"_s), true);
}

TEST_F(PerstistenceHelperTest, ACountAtItsLimitEndsTheProcess)
{
    const auto largest = std::numeric_limits<std::int64_t>::max();
    PerstistenceHelper helper(defaults);
    defaults.setInteger(largest - 1, u"numSaves"_s);
    helper.incrementNumSaves();
    EXPECT_EQ(helper.numSaves(), largest);
    EXPECT_DEATH(helper.incrementNumSaves(), "numSaves overflows");
}

TEST_F(PerstistenceHelperTest, TheReviewedVersionIsNotedOnlyIfThereIsOne)
{
    PerstistenceHelper helper(defaults);
    helper.setReviewRequestedForThisVersion();
    EXPECT_FALSE(defaults.stringForKey(u"reviewRequestedVersion"_s));
    QCoreApplication::setApplicationVersion(u"1.2"_s);
    helper.setReviewRequestedForThisVersion();
    QCoreApplication::setApplicationVersion(QString());
    EXPECT_EQ(defaults.stringForKey(u"reviewRequestedVersion"_s), u"1.2"_s);
}

} // namespace
} // namespace pelmira
