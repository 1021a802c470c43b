#include "persistence/preferences/PerstistenceHelper.h"

#include "support/Test.h"

#include <QCoreApplication>

namespace pelmira {
namespace {

using namespace Qt::StringLiterals;

TEST(PerstistenceHelper, ACountAtItsLimitEndsTheProcessAndOnlyAVersionIsNoted)
{
    const test::TemporaryFolder folder;
    UserDefaults defaults(folder.path("preferences.json"));
    PerstistenceHelper helper(defaults);
    helper.setReviewRequestedForThisVersion();
    EXPECT_FALSE(defaults.stringForKey(u"reviewRequestedVersion"_s));
    const auto largest = std::numeric_limits<std::int64_t>::max();
    defaults.setInteger(largest - 1, u"numSaves"_s);
    helper.incrementNumSaves();
    EXPECT_EQ(helper.numSaves(), largest);
    EXPECT_DEATH(helper.incrementNumSaves(), "numSaves overflows");
}

} // namespace
} // namespace pelmira
