#include "mask_editor/limits/PlatformUtils.h"

#include <gtest/gtest.h>

namespace pelmira {
namespace {

TEST(PlatformUtils, FullScreenAllowsForTheSystemsBarsInAnyOrientation)
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
