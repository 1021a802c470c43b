#include "mask_editor/limits/PlatformUtils.h"

#include <gtest/gtest.h>

#include <utility>

namespace pelmira {
namespace {

class PlatformUtilsTest : public testing::Test {
protected:
    ~PlatformUtilsTest() override { PlatformUtils::overrideDeviceRamMB(std::nullopt); }
};

TEST_F(PlatformUtilsTest, TheImageLimitChangesAbove1536Megabytes)
{
    for (const auto& [megabytes, limit] :
         {std::pair(512, 2048.0), {1535, 2048.0}, {1536, 2048.0}, {1537, 4096.0}, {3072, 4096.0}}) {
        PlatformUtils::overrideDeviceRamMB(megabytes);
        EXPECT_EQ(PlatformUtils::maxImageDimForDevice(), limit) << megabytes;
    }
}

TEST_F(PlatformUtilsTest, FullScreenAllowsForTheSystemsBarsInAnyOrientation)
{
    const QSizeF phone(390, 844);
    EXPECT_TRUE(PlatformUtils::isRunningFullScreen(QSizeF(390, 744), phone));
    EXPECT_TRUE(PlatformUtils::isRunningFullScreen(QSizeF(844, 290), phone));
    EXPECT_FALSE(PlatformUtils::isRunningFullScreen(QSizeF(390, 743.5), phone));
    EXPECT_FALSE(PlatformUtils::isRunningFullScreen(QSizeF(289, 844), phone));
    EXPECT_FALSE(PlatformUtils::isRunningFullScreen(std::nullopt, phone));
}

} // namespace
} // namespace pelmira
