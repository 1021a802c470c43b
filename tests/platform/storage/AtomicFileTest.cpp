#include "platform/storage/AtomicFile.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace pelmira {
namespace {

TEST(AtomicFile, FailureLeavesNothingBehind)
{
    const test::TemporaryFolder folder;
    QDir().mkpath(folder.path("taken"));
    for (const IfExists ifExists : {IfExists::Replace, IfExists::Refuse})
        EXPECT_TRUE(writeFileAtomically(folder.path("taken"), "new", ifExists,
                                        Durability::OutlivesPowerCut));
    EXPECT_EQ(folder.names(), QStringList{QStringLiteral("taken")});
}

} // namespace
} // namespace pelmira
