#include "platform/AtomicFile.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace pelmira {
namespace {

using test::TemporaryFolder;

TEST(AtomicFile, ReplacesOrRefusesAnExistingFile)
{
    const TemporaryFolder folder;
    const QString path = folder.write("photo", "old");
    EXPECT_EQ(writeFileAtomically(path, "new", IfExists::Refuse, Durability::OutlivesPowerCut),
              std::errc::file_exists);
    EXPECT_EQ(TemporaryFolder::read(path), "old");
    EXPECT_FALSE(writeFileAtomically(path, "new", IfExists::Replace, Durability::OutlivesPowerCut));
    EXPECT_EQ(TemporaryFolder::read(path), "new");
    EXPECT_EQ(folder.names().size(), 1);
}

TEST(AtomicFile, FailureLeavesNothingBehind)
{
    const TemporaryFolder folder;
    QDir().mkpath(folder.path("taken"));
    EXPECT_TRUE(writeFileAtomically(folder.path("taken"), "new", IfExists::Replace,
                                    Durability::OutlivesProcess));
    EXPECT_EQ(folder.names().size(), 1);
    EXPECT_EQ(writeFileAtomically(folder.path("absent/file"), "new", IfExists::Replace,
                                  Durability::OutlivesProcess),
              std::errc::no_such_file_or_directory);
}

} // namespace
} // namespace pelmira
