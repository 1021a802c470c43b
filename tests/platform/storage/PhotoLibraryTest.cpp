#include "platform/storage/PhotoLibrary.h"

#include "support/Test.h"

#include <unistd.h>

namespace pelmira {
namespace {

const QDateTime moment(QDate(2026, 11, 22), QTime(21, 5, 33));

TEST(PhotoLibrary, SavesUnderANewNameAndKeepsWhatStands)
{
    const TemporaryFolder folder;
    const PhotoLibrary library(folder.path("not yet there"));
    EXPECT_EQ(std::get<QString>(library.save("first", u"png"_s, moment)),
              library.folder() + u"/Pelmira 2026-11-22 21-05-33.png"_s);
    const auto second = std::get<QString>(library.save("second", u"png"_s, moment));
    EXPECT_EQ(second, library.folder() + u"/Pelmira 2026-11-22 21-05-33 2.png"_s);
    EXPECT_EQ(TemporaryFolder::read(library.folder() + u"/Pelmira 2026-11-22 21-05-33.png"_s),
              "first");
    EXPECT_EQ(TemporaryFolder::read(second), "second");
}

TEST(PhotoLibrary, SweepsUpAfterAKilledProcess)
{
    const TemporaryFolder folder;
    QDir().mkpath(folder.path("Pelmira"));
    constexpr int twoDays = 2 * 24 * 3600;
    folder.writeOld("Pelmira/.pelmira-a.tmp", twoDays);
    folder.writeOld("Pelmira/.pelmira-b.tmp", 0);
    folder.writeOld("Pelmira/.another's.tmp", twoDays);
    folder.writeOld("Pelmira/picture.png", twoDays);
    const PhotoLibrary library(folder.path());
    ASSERT_TRUE(std::holds_alternative<QString>(library.save("x", u"png"_s, moment)));
    EXPECT_EQ(QDir(library.folder()).entryList(QDir::Files | QDir::Hidden, QDir::Name),
              QStringList({u".another's.tmp"_s, u".pelmira-b.tmp"_s,
                           u"Pelmira 2026-11-22 21-05-33.png"_s, u"picture.png"_s}));
}

TEST(PhotoLibrary, ManyMaySaveAtOnce)
{
    const TemporaryFolder folder;
    const PhotoLibrary library(folder.path());
    std::vector<QString> paths(10);
    std::vector<std::jthread> threads;
    for (std::size_t i = 0; i < paths.size(); ++i)
        threads.emplace_back([&library, &path = paths[i], i] {
            path = std::get<QString>(library.save(QByteArray(int(i), 'x'), u"png"_s, moment));
        });
    threads.clear();
    for (std::size_t i = 0; i < paths.size(); ++i)
        EXPECT_EQ(TemporaryFolder::read(paths[i]), QByteArray(int(i), 'x'));
    EXPECT_EQ(QDir(library.folder()).entryList(QDir::Files | QDir::Hidden).size(), 10);
}

TEST(PhotoLibrary, AFolderThatCannotBeWrittenIsTold)
{
    const TemporaryFolder folder;
    const PhotoLibrary blocked(folder.impossibleFolder());
    const auto problem = std::get<SaveProblem>(blocked.save("x", u"png"_s));
    EXPECT_EQ(problem, SaveProblem::Failed);
    EXPECT_TRUE(blocked.messageForProblem(problem).contains(blocked.folder()));

    // Root may write anywhere, so it steps down for a moment.
    QDir().mkpath(folder.path("locked"));
    QFile::setPermissions(folder.path("locked"), QFile::ReadOwner | QFile::ExeOwner);
    const uid_t user = geteuid();
    ASSERT_TRUE(user != 0 || seteuid(65534) == 0);
    const auto denied = PhotoLibrary(folder.path("locked")).save("x", u"png"_s);
    ASSERT_EQ(seteuid(user), 0);
    EXPECT_EQ(std::get<SaveProblem>(denied), SaveProblem::NoPermission);
}

} // namespace
} // namespace pelmira
